// The cellar: first light, then pi.

Raum "Keller.lsd"
    Bild "keller_dunkel.jpg"
    Start
        Musik "keller.mid"
        LöscheMerker TICK1
        LöscheMerker TICK2
        WennMerker LICHT
            ZeigBild "keller.jpg"
            ObjektAn "Maus"
            ObjektAn "Regal"
            ObjektAn "Kiste"
            WennMerker PI_FERTIG
                SetzeZeiger "Stahltür" "tuer1.ico"
            EndeWenn
        Sonst
            WennMerker KELLER_GESEHEN
            Sonst
                SetzeMerker KELLER_GESEHEN
                Ton "velmix-keller-01.wav"
                Text "Dunkel. Da ist das Feuer vom Kessel, da leuchtet ein Schloss."
                     "Und da leuchten Augen. Ich sehe lieber nicht hin."
            EndeWenn
        EndeWenn
        WennMerker HINAUSGEWORFEN
            LöscheMerker HINAUSGEWORFEN
            Ton "velmix-keller-02.wav"
            Text "Er hat mich hinausgeworfen! Zum Glück schafft er das Löschen nicht so schnell."
                 "Ich muss ihn vorher besänftigen. Mit etwas, das er von früher kennt."
        EndeWenn

    Objekt "Sicherungskasten"
        Zeiger "rad1.ico"
        Fläche
            Vieleck 112 126, 152 126, 182 156, 206 164, 206 260, 180 252, 100 262, 100 162
        Rechts
            ZoomIN 96 136 216 226
            WennMerker LICHT
                Ton "velmix-keller-03.wav"
                Text "Sechs Sicherungen, alle drin. Sie summen im Chor."
            Sonst
                Ton "velmix-keller-04.wav"
                Text "Sechs Plätze, fünf Sicherungen. Neben dem leeren steht »Licht«."
            EndeWenn
            ZoomOUT 96 136 216 226
        Links
            WennMerker LICHT
                Ton "velmix-keller-05.wav"
                Text "Ich lasse ihn in Ruhe. Jetzt, wo er funktioniert."
            Sonst
                Ton "velmix-keller-06.wav"
                Text "Mit dem Finger? Ich bin jung, aber nicht so jung."
            EndeWenn
        Ablegen
            WennParameter SICHERUNG
                GibGegenstand "sicherung.bmp"
                SetzeMerker LICHT
                Ton "klick.wav"
                ZeigBild "keller.jpg"
                ObjektAn "Maus"
                ObjektAn "Regal"
                ObjektAn "Kiste"
                Ton "velmix-keller-07.wav"
                Text "Es werde Licht! Ach, die Augen waren gar keine. Das war der Staub."
            Sonst
                WennParameter SPICKZETTEL
                    Ton "velmix-keller-08.wav"
                    Text "Papier leitet nicht. Steht auf dem Zettel, hinten."
                Sonst
                    Fehlerton
                EndeWenn
            EndeWenn

    Objekt "Stahltür"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 236 70 406 302
        Rechts
            ZoomIN 240 90 400 210
            Ton "velmix-keller-09.wav"
            Text "»Rechenzentrum«. Und ein Schloss der Mathe-AG: Wer Pi tippen kann, darf hinein."
            ZoomOUT 240 90 400 210
        Links
            WennMerker PI_FERTIG
                Raumwechsel "Zentrox.lsd"
            Sonst
                WennMerker LICHT
                    Marke PI
                    Spiel PI PI_SIEG
                    Musik "keller.mid"
                    WennMerker PI_SIEG
                        SetzeMerker PI_FERTIG
                        SetzeZeiger "Stahltür" "tuer1.ico"
                        Ton "schloss.wav"
                        Text "Klack. Klack. Klack. Wusch."
                        Ton "velmix-keller-10.wav"
                        Text "Vierzig Stellen! Meine Finger sind jetzt irrational. Aber die Tür ist offen."
                    Sonst
                        SetzeMerker PI_VERLOREN
                        Auswahl "»Falsch«, sagt das Schloss. Es klingt nach Frau Orlix."
                        Fall "Noch einmal!"
                            Springe PI
                        Option "Durchatmen. Vielleicht habe ich noch einen Zettel."
                        EndeAuswahl
                    EndeWenn
                Sonst
                    Ton "velmix-keller-11.wav"
                    Text "Ich sehe die Tasten nicht. Erst brauche ich Licht."
                EndeWenn
            EndeWenn
        Ablegen
            WennParameter SPICKZETTEL
                WennMerker PI_VERLOREN
                    GibGegenstand "spickzettel.bmp"
                    BöseÄndern 1
                    SetzeMerker PI_FERTIG
                    SetzeZeiger "Stahltür" "tuer1.ico"
                    Ton "schloss.wav"
                    Text "Klack. Klack. Klack."
                    Ton "velmix-keller-12.wav"
                    Text "Drei, Komma, eins, vier und so weiter, abgelesen bis zur vierzigsten."
                         "Offen. Archimedes dreht sich im Kreis."
                Sonst
                    Ton "velmix-keller-13.wav"
                    Text "Erst versuche ich es ehrlich. Das wäre das erste Mal."
                EndeWenn
            Sonst
                WennParameter MUENZE
                    Ton "velmix-keller-14.wav"
                    Text "Kein Münzschlitz. Kein Schlüsselloch. Nur Zahlen."
                Sonst
                    Fehlerton
                EndeWenn
            EndeWenn

    Objekt "Kessel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 546 100 640 416
        Rechts
            Ton "velmix-keller-15.wav"
            Text "Der Heizkessel. Er frisst Koks, Holz und alte Zeugnisse."
        Links
            Ton "velmix-keller-16.wav"
            Text "Heiß! Auch ohne Sicherung."

    Objekt "Ventil"
        Zeiger "rad1.ico"
        Fläche
            Rechteck 478 368 528 442
        Rechts
            Ton "velmix-keller-17.wav"
            Text "Ein Ventil. Links steht »auf«, rechts steht »bloß nicht«."
        Links
            Ton "velmix-keller-18.wav"
            Text "Bloß nicht."

    Objekt "Maus"
        Zeiger "auge1.ico"
        Inaktiv
        Fläche
            Rechteck 164 406 250 444
        Rechts
            Ton "velmix-keller-19.wav"
            Text "Eine Maus. Sie hat keine Tasten, ist aber trotzdem praktisch."
        Links
            Ton "maus.wav"
            Text "Piep."

    Objekt "Regal"
        Zeiger "auge1.ico"
        Inaktiv
        Fläche
            Rechteck 420 140 532 304
        Rechts
            Ton "velmix-keller-20.wav"
            Text "Was eine Schule vergisst: 1979, Kreide und eine Schachtel »Nie«."

    Objekt "Kiste"
        Zeiger "auge1.ico"
        Inaktiv
        Fläche
            Vieleck 0 372, 24 322, 98 322, 98 372, 132 372, 132 444, 112 458, 0 458
        Rechts
            Ton "velmix-keller-21.wav"
            Text "Zeugnisse seit 1901. Manche sind angesengt. Von den Besitzern."

    Objekt "Rohre"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 508 36 640 100
        Rechts
            Ton "velmix-keller-22.wav"
            Text "Das Rohr von 1912. Ich ziehe den Kopf ein."

    Objekt "Glühbirne"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 306 0 334 66
        Rechts
            WennMerker LICHT
                Ton "velmix-keller-23.wav"
                Text "Vierzig Watt reine Zuversicht."
            Sonst
                Ton "velmix-keller-24.wav"
                Text "Eine Glühbirne. Sie hängt herum wie wir alle."
            EndeWenn

    Objekt "Pfütze"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 232 390 364 428
        Rechts
            Ton "velmix-keller-25.wav"
            Text "Eine Pfütze. Herr Grobbel nennt sie »das Kellerprojekt«."

    Objekt "Treppe"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 8 98, 80 96, 80 312, 8 320
        Rechts
            Ton "velmix-keller-26.wav"
            Text "Nach oben. Da ist Luft."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "spickzettel.bmp"
    Rechts
        Ton "velmix-keller-27.wav"
        Text "»3,1415926535 ...« Vierzig Stellen, Schriftgröße vier. Meine beste Arbeit."
    Links
        Ton "velmix-keller-28.wav"
        Text "Ich könnte ihn auswendig lernen. Aber dann wäre es ja Lernen."
