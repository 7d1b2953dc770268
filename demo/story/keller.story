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
        SonstWenn nicht KELLER_GESEHEN
            SetzeMerker KELLER_GESEHEN
            Velmix: "Dunkel. Da ist das Feuer vom Kessel, da leuchtet ein Schloss."
                    "Und da leuchten Augen. Ich sehe lieber nicht hin."
        EndeWenn
        WennMerker HINAUSGEWORFEN
            LöscheMerker HINAUSGEWORFEN
            Velmix: "Er hat mich hinausgeworfen! Zum Glück schafft er das Löschen nicht so schnell."
                    "Ich muss ihn vorher besänftigen. Mit etwas, das er von früher kennt."
        EndeWenn

    Objekt "Sicherungskasten"
        Zeiger "rad1.ico"
        Fläche
            Vieleck 112 126, 152 126, 182 156, 206 164, 206 260, 180 252, 100 262, 100 162
        Rechts
            ZoomIN 96 136 216 226
            WennMerker LICHT
                Velmix: "Sechs Sicherungen, alle drin. Sie summen im Chor."
            Sonst
                Velmix: "Sechs Plätze, fünf Sicherungen. Neben dem leeren steht »Licht«."
            EndeWenn
            ZoomOUT 96 136 216 226
        Links
            WennMerker LICHT
                Velmix: "Ich lasse ihn in Ruhe. Jetzt, wo er funktioniert."
            Sonst
                Velmix: "Mit dem Finger? Ich bin jung, aber nicht so jung."
            EndeWenn
        Ablegen
            Bei SICHERUNG
                GibGegenstand SICHERUNG
                SetzeMerker LICHT
                Ton "klick.wav"
                ZeigBild "keller.jpg"
                ObjektAn "Maus"
                ObjektAn "Regal"
                ObjektAn "Kiste"
                Velmix: "Es werde Licht! Ach, die Augen waren gar keine. Das war der Staub."
            Bei SPICKZETTEL
                Velmix: "Papier leitet nicht. Steht auf dem Zettel, hinten."

    Objekt "Stahltür"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 236 70 406 302
        Rechts
            ZoomIN 240 90 400 210
            Velmix: "»Rechenzentrum«. Und ein Schloss der Mathe-AG: Wer Pi tippen kann, darf hinein."
                    "Ziffer für Ziffer auf der Tastatur, und immer schneller."
            ZoomOUT 240 90 400 210
        Links
            WennMerker PI_FERTIG
                Raumwechsel "Zentrox.lsd"
            SonstWenn LICHT
                Marke PI
                Spiel PI PI_SIEG
                Musik "keller.mid"
                WennMerker PI_SIEG
                    SetzeMerker PI_FERTIG
                    SetzeZeiger "Stahltür" "tuer1.ico"
                    Ton "schloss.wav"
                    Text "Klack. Klack. Klack. Wusch."
                    Velmix: "Vierzig Stellen! Meine Finger sind jetzt irrational. Aber die Tür ist offen."
                Sonst
                    SetzeMerker PI_VERLOREN
                    Auswahl "»Falsch«, sagt das Schloss. Es klingt nach Frau Orlix."
                        Fall "Noch einmal!"
                            Springe PI
                        Option "Durchatmen. Vielleicht habe ich noch einen Zettel."
                    EndeAuswahl
                EndeWenn
            Sonst
                Velmix: "Ich sehe die Tasten nicht. Erst brauche ich Licht."
            EndeWenn
        Ablegen
            Bei SPICKZETTEL
                WennMerker PI_VERLOREN
                    GibGegenstand SPICKZETTEL
                    BöseÄndern 1
                    SetzeMerker PI_FERTIG
                    SetzeZeiger "Stahltür" "tuer1.ico"
                    Ton "schloss.wav"
                    Text "Klack. Klack. Klack."
                    Velmix: "Drei, Komma, eins, vier und so weiter, abgelesen bis zur vierzigsten."
                            "Offen. Archimedes dreht sich im Kreis."
                Sonst
                    Velmix: "Erst versuche ich es ehrlich. Das wäre das erste Mal."
                EndeWenn
            Bei MÜNZE
                Velmix: "Kein Münzschlitz. Kein Schlüsselloch. Nur Zahlen."

    Objekt "Kessel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 546 100 640 416
        Rechts
            Velmix: "Der Heizkessel. Er frisst Koks, Holz und alte Zeugnisse."
        Links
            Velmix: "Heiß! Auch ohne Sicherung."

    Objekt "Ventil"
        Zeiger "rad1.ico"
        Fläche
            Rechteck 478 368 528 442
        Rechts
            Velmix: "Ein Ventil. Links steht »auf«, rechts steht »bloß nicht«."
        Links
            Velmix: "Bloß nicht."

    Objekt "Maus"
        Zeiger "auge1.ico"
        Inaktiv
        Fläche
            Rechteck 164 406 250 444
        Rechts
            Velmix: "Eine Maus. Sie hat keine Tasten, ist aber trotzdem praktisch."
        Links
            Ton "maus.wav"
            Text "Piep."

    Objekt "Regal"
        Zeiger "auge1.ico"
        Inaktiv
        Fläche
            Rechteck 420 140 532 304
        Rechts
            Velmix: "Was eine Schule vergisst: 1979, Kreide und eine Schachtel »Nie«."

    Objekt "Kiste"
        Zeiger "auge1.ico"
        Inaktiv
        Fläche
            Vieleck 0 372, 24 322, 98 322, 98 372, 132 372, 132 444, 112 458, 0 458
        Rechts
            Velmix: "Zeugnisse seit 1901. Manche sind angesengt. Von den Besitzern."

    Objekt "Rohre"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 508 36 640 100
        Rechts
            Velmix: "Das Rohr von 1912. Ich ziehe den Kopf ein."

    Objekt "Glühbirne"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 306 0 334 66
        Rechts
            WennMerker LICHT
                Velmix: "Vierzig Watt reine Zuversicht."
            Sonst
                Velmix: "Eine Glühbirne. Sie hängt herum wie wir alle."
            EndeWenn

    Objekt "Pfütze"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 232 390 364 428
        Rechts
            Velmix: "Eine Pfütze. Herr Grobbel nennt sie »das Kellerprojekt«."

    Objekt "Treppe"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 8 98, 80 96, 80 312, 8 320
        Rechts
            Velmix: "Nach oben. Da ist Luft."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "spickzettel.bmp"
    Rechts
        Velmix: "»3,1415926535 ...« Vierzig Stellen, Schriftgröße vier. Meine beste Arbeit."
    Links
        Velmix: "Ich könnte ihn auswendig lernen. Aber dann wäre es ja Lernen."
