Raum "Start.lsd"
    Objekt "Münze"
        Fläche Rechteck 100 300 140 330
        Links
            NimmGegenstand "muenze.bmp"
            ObjektAus "Münze"
    Objekt "Bettler"
        Fläche Rechteck 200 200 260 330
        Links
            Text "Eine milde Gabe?"
        Ablegen
            WennParameter MUENZE
                GibGegenstand "muenze.bmp"
                Text "Danke, Herr."
            EndeWenn
    Objekt "Fährmann"
        Fläche Rechteck 400 200 480 330
        Links
            WennMerker BEZAHLT
                Auswahl "Hinüber?"
                    Fall "Ja."
                        Raumwechsel "Insel.lsd"
                    Option "Noch nicht."
                EndeAuswahl
            Sonst
                Text "Ohne Münze keine Fahrt."
            EndeWenn
        Ablegen
            WennParameter MUENZE
                GibGegenstand "muenze.bmp"
                SetzeMerker BEZAHLT
                Text "Steig ein."
            EndeWenn

Raum "Insel.lsd"
    Start
        Text "Eine Insel."
        // ende: insel
        System Ende

Gegenstand "muenze.bmp"
    Rechts
        Text "Eine Münze."
