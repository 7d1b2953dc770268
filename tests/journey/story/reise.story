// A journey from the menu through rooms and saved games, and out again by every door.
Raum "Start.lsd"
    Bild "red.bmp"
    Start
        WennMerker BEGONNEN
            SetzeMerker WIEDER_DA
        Sonst
            SetzeMerker BEGONNEN
        EndeWenn
    Objekt "Seil"
        Fläche
            Rechteck 0 0 50 50
        Links
            WennMerker SEIL
            Sonst
                NimmGegenstand "lime.bmp"
                SetzeMerker SEIL
            EndeWenn
            BöseÄndern 1
    Objekt "Tür"
        Fläche
            Rechteck 100 0 150 50
        Links
            Raumwechsel "Zwei.lsd"
    Objekt "Schalter"
        Fläche
            Rechteck 200 0 250 50
        Links
            ObjektAus "Seil"
            SetzeMerker AUS
    Objekt "Uhr"
        Fläche
            Rechteck 300 0 350 50
        Links
            CountDownSetzen 1000
    Objekt "Abspann"
        Fläche
            Rechteck 400 0 450 50
        Links
            System Abspann
            SetzeMerker GESEHEN
    Objekt "Speichern"
        Fläche
            Rechteck 0 100 50 150
        Links
            System Save
            SetzeMerker GESPEICHERT
    Objekt "Laden"
        Fläche
            Rechteck 100 100 150 150
        Links
            System Open
            SetzeMerker NICHT_GELADEN
    Objekt "Ausgang"
        Fläche
            Rechteck 200 100 250 150
        Links
            Text "Bis bald."
            System Ende
    Objekt "Tisch"
        Fläche
            Rechteck 400 100 450 150
        Links
            Spiel MEMORY GEWONNEN
    Objekt "Frage"
        Fläche
            Rechteck 300 100 350 150
        Links
            Auswahl "Wirklich?"
            Fall "ja"
                SetzeMerker JA
            EndeAuswahl

Raum "Zwei.lsd"
    Bild "blue.bmp"
    Start
        SetzeMerker ZWEI
    Objekt "Zurück"
        Fläche
            Rechteck 0 0 50 50
        Links
            Raumwechsel "Start.lsd"

Raum "Laden.lsd"
    Bild "yellow.bmp"
    Start
        System Open
        Raumwechsel "Start.lsd"
