// The school yard. A riddle lies on the gully.

Raum "Hof.lsd"
    Bild "hof.jpg"
    Start
        Musik "hof.mid"
        WennMerker ESEL_FERTIG
            ZeigBild "hof_frei.jpg"
            ObjektAus "Balduin"
            ObjektAn "Balduin steht"
        Sonst
            WennMerker HOF_GESEHEN
            Sonst
                SetzeMerker HOF_GESEHEN
                Ton "velmix-hof-01.wav"
                Text "Der Schulhof. Und mittendrauf Balduin, der Schulesel. Genau auf dem Gully."
            EndeWenn
        EndeWenn

    Objekt "Gully"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 310 384 384 412
        Rechts
            WennMerker ESEL_FERTIG
                Ton "velmix-hof-02.wav"
                Text "Der Gully. Ganz unten glänzt etwas."
            Sonst
                Ton "velmix-hof-03.wav"
                Text "Der Gully ist unter Balduin. Balduin ist ziemlich weit unten an Balduin."
            EndeWenn
        Links
            WennMerker SCHLÜSSEL
                Ton "velmix-hof-04.wav"
                Text "Jetzt liegt dort nur noch Kleingeld aus der Zeit vor dem Euro."
            Sonst
                WennMerker ESEL_FERTIG
                    Ton "velmix-hof-05.wav"
                    Text "Mein Arm ist zu kurz. Ich brauche etwas zum Angeln."
                Sonst
                    Ton "velmix-hof-06.wav"
                    Text "Nicht, solange jemand darauf liegt, der treten kann."
                EndeWenn
            EndeWenn
        Ablegen
            WennMerker ESEL_FERTIG
                WennParameter ANGEL
                    GibGegenstand "angel.bmp"
                    SetzeMerker SCHLÜSSEL
                    NimmGegenstand "schluessel.bmp"
                    Ton "schloss.wav"
                    Text "Klong. Kratz. Klick!"
                    Ton "velmix-hof-07.wav"
                    Text "Petri Heil! Der Kellerschlüssel. Und ein Kaugummi, den ich wieder loslasse."
                Sonst
                    WennParameter MAGNET
                        Ton "velmix-hof-08.wav"
                        Text "Der Magnet würde schon wollen. Aber ich komme nicht bis unten."
                    Sonst
                        WennParameter SEIL
                            Ton "velmix-hof-09.wav"
                            Text "Bis unten reicht das Seil. Nur hält sich der Schlüssel nicht daran fest."
                        Sonst
                            Fehlerton
                        EndeWenn
                    EndeWenn
                EndeWenn
            Sonst
                Ton "velmix-hof-10.wav"
                Text "Balduin liegt auf dem Gully. Alles, was ich ihm hinwerfe, frisst er."
            EndeWenn

    Objekt "Balduin"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 276 282, 332 280, 352 330, 400 336, 404 382, 252 412, 262 380, 298 372
        Rechts
            Ton "velmix-hof-11.wav"
            Text "Balduin. Esel, Philosoph und ältestes Mitglied der Garten-AG."
        Links
            RahmenAuf
            Einbinden "gesicht/balduin.teil"
            Ton "balduin-hof-01.wav"
            Text "$7Ah. Ein Mensch. Sie wollen sicher an den Gully."
            Einbinden "gesicht/balduin.teil"
            Ton "velmix-hof-12.wav"
            Text "Wenn es keine Umstände macht."
            Einbinden "gesicht/balduin.teil"
            Ton "balduin-hof-02.wav"
            Text "$7Alles macht Umstände. Darum liege ich ja."
                 "$7Aber für ein gelöstes Rätsel stehe ich auf. Aus Prinzip."
            Marke FRAGE
            Einbinden "gesicht/balduin.teil"
            Auswahl "Balduin kaut an einer Butterblume."
            Fall "Das Rätsel, bitte."
                Marke RÄTSEL
                Spiel ESEL ESEL_SIEG
                Musik "hof.mid"
                WennMerker ESEL_SIEG
                    Marke STEHT_AUF
                    Einbinden "gesicht/balduin.teil"
                    Ton "balduin-hof-03.wav"
                    Text "$7Er gab auf. Sie nicht. Das nenne ich Bildung."
                         "$7Einen Augenblick, die Hinterbeine schlafen noch."
                    SetzeMerker ESEL_FERTIG
                    RahmenZu
                    ZeigBild "hof_frei.jpg"
                    ObjektAus "Balduin"
                    ObjektAn "Balduin steht"
                    Ton "velmix-hof-13.wav"
                    Text "Er steht! Der Gully ist frei."
                    Springe FERTIG
                Sonst
                    SetzeMerker ESEL_VERLOREN
                    Einbinden "gesicht/balduin.teil"
                    Ton "balduin-hof-04.wav"
                    Text "$7Sie haben aufgegeben. Er übrigens auch. So nahe waren Sie dran."
                    Springe FRAGE
                EndeWenn
            Fall "Schieben."
                WennMerker ESEL_VERLOREN
                    BöseÄndern 1
                    Einbinden "gesicht/balduin.teil"
                    Ton "balduin-hof-05.wav"
                    Text "$7Au! Ich gehe ja schon. Aber ich denke mir mein Teil."
                    Springe STEHT_AUF
                Sonst
                    Einbinden "gesicht/balduin.teil"
                    Ton "balduin-hof-06.wav"
                    Text "$7Das haben schon größere Geister versucht. Fragen Sie erst das Rätsel."
                    Springe FRAGE
                EndeWenn
            Fall "Später."
                Einbinden "gesicht/balduin.teil"
                Ton "balduin-hof-07.wav"
                Text "$7Später. Mein Lieblingswort."
            EndeAuswahl
            RahmenZu
            Marke FERTIG
        Ablegen
            WennParameter MOEHRE
                GibGegenstand "moehre.bmp"
                SetzeMerker ESEL_FERTIG
                BöseÄndern -1
                RahmenAuf
                Einbinden "gesicht/balduin.teil"
                Ton "balduin-hof-08.wav"
                Text "$7Eine Möhre! Ohne Frage, ohne Gegenleistung?"
                     "$7Da stehe ich doch gleich anders da."
                RahmenZu
                ZeigBild "hof_frei.jpg"
                ObjektAus "Balduin"
                ObjektAn "Balduin steht"
                Ton "velmix-hof-14.wav"
                Text "Er steht! Der Gully ist frei."
            Sonst
                WennParameter KUCHEN
                    Ton "balduin-hof-09.wav"
                    Text "$7Zucker vernebelt. Bringen Sie mir etwas mit Wurzel."
                Sonst
                    Fehlerton
                EndeWenn
            EndeWenn

    Objekt "Balduin steht"
        Zeiger "mund1.ico"
        Inaktiv
        Fläche
            Vieleck 410 256, 462 256, 480 320, 550 330, 560 428, 430 428, 416 360
        Rechts
            Ton "velmix-hof-15.wav"
            Text "Im Stehen sieht er aus wie jemand, der gleich eine Rede hält."
        Links
            RahmenAuf
            Einbinden "gesicht/balduin.teil"
            Ton "balduin-hof-10.wav"
            Text "$7Man sieht so viel weiter von hier oben. Leider sieht man dann auch die Schule."
            RahmenZu
        Ablegen
            WennParameter MOEHRE
                GibGegenstand "moehre.bmp"
                BöseÄndern -1
                Ton "balduin-hof-11.wav"
                Text "$7Und das, obwohl ich schon stehe. Sie sind ein guter Mensch."
            Sonst
                Fehlerton
            EndeWenn

    Objekt "Garten-Schild"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 166 350 206 376
        Rechts
            Ton "velmix-hof-16.wav"
            Text "»Garten-AG. Nicht essen.« Balduin kann nicht lesen. Sagt er."

    Objekt "Salat"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 146 372 194 402
        Rechts
            Ton "velmix-hof-17.wav"
            Text "Ein Salatkopf. Er sieht intelligenter aus als mancher aus der Parallelklasse."

    Objekt "Möhren"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 14 354 138 408
        Rechts
            Ton "velmix-hof-18.wav"
            Text "Drei prächtige Möhren. Bio-Leistungskurs, angewandt."
        Links
            WennMerker MÖHRE
                Ton "velmix-hof-19.wav"
                Text "Zwei lasse ich für die Garten-AG stehen."
            Sonst
                SetzeMerker MÖHRE
                NimmGegenstand "moehre.bmp"
                Ton "velmix-hof-20.wav"
                Text "Eine Möhre. Für einen guten Zweck mit langen Ohren."
            EndeWenn

    Objekt "Beet"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 0 384 216 446
        Rechts
            Ton "velmix-hof-21.wav"
            Text "Das Hochbeet der Garten-AG. Hoch ist übertrieben, Beet auch."

    Objekt "Fahrrad"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 120 236 218 308
        Rechts
            Ton "velmix-hof-22.wav"
            Text "Das rote Fahrrad! Sein Besitzer wird seit drei Jahren ausgerufen."
        Links
            Ton "velmix-hof-23.wav"
            Text "Abgeschlossen. Mit drei Schlössern und einem Drohbrief."

    Objekt "Efeu"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 186 66 222 236
        Rechts
            Ton "velmix-hof-24.wav"
            Text "Der Efeu will ins Lehrerzimmer. Noch zwei Sommer, dann hat er es."

    Objekt "Tor"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 302 178 414 256
        Rechts
            Ton "velmix-hof-25.wav"
            Text "Das Tor nach draußen. Morgen gehe ich da durch und nie wieder zurück. Schluck."
        Links
            Ton "velmix-hof-26.wav"
            Text "Nicht ohne die CD."

    Objekt "Kirchturm"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 424 122 452 216
        Rechts
            Ton "velmix-hof-27.wav"
            Text "Der Kirchturm von Bramhof. Die einzige Uhr, die sich Mühe gibt."

    Objekt "Bank"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 578 312 630 362
        Rechts
            Ton "velmix-hof-28.wav"
            Text "Ein vergessenes Heft: »Mein Leben als Kreide«. Band drei."

    Objekt "Herz"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 536 252 566 282
        Rechts
            Ton "velmix-hof-29.wav"
            Text "Ein Herz in der Rinde. Ohne Namen. Da war jemand vorsichtig."

    Objekt "Kastanie"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 412 110, 500 40, 620 30, 640 70, 640 196, 600 196, 592 330, 520 330, 530 200, 430 160
        Rechts
            Ton "velmix-hof-30.wav"
            Text "Die Kastanie. Jede Klasse behauptet, sie gepflanzt zu haben."

    Objekt "Schwalben"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 296 64 396 126
        Rechts
            Ton "velmix-hof-31.wav"
            Text "Schwalben. Sie haben schon Ferien."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 24 170, 60 154, 100 168, 102 292, 24 326
        Rechts
            Ton "velmix-hof-32.wav"
            Text "Zurück in den Flur."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "moehre.bmp"
    Rechts
        Ton "velmix-hof-33.wav"
        Text "Eine Möhre. Knackig, orange, unbestechlich. Also ideal zum Bestechen."
    Links
        Ton "velmix-hof-34.wav"
        Text "Ich hatte schon Kantine."

Gegenstand "schluessel.bmp"
    Rechts
        Ton "velmix-hof-35.wav"
        Text "Der Kellerschlüssel. Auf dem Anhänger steht »UG«. Untergrund?"
