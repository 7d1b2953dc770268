// The school yard. A riddle lies on the gully.

Skriptteil BALDUIN_STEHT
    ZeigBild "hof_frei.jpg"
    ObjektAus "Balduin"
    ObjektAn "Balduin steht"

Raum "Hof.lsd"
    Bild "hof.jpg"
    Start
        Musik "hof.mid"
        WennMerker ESEL_FERTIG
            Rufe BALDUIN_STEHT
        SonstWenn nicht HOF_GESEHEN
            SetzeMerker HOF_GESEHEN
            Velmix: "Der Schulhof. Und mittendrauf Balduin, der Schulesel. Genau auf dem Gully."
        EndeWenn

    Objekt "Gully"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 310 384 384 412
        Rechts
            WennMerker ESEL_FERTIG
                Velmix: "Der Gully. Ganz unten glänzt etwas."
            Sonst
                Velmix: "Der Gully ist unter Balduin. Balduin ist ziemlich weit unten an Balduin."
            EndeWenn
        Links
            WennMerker SCHLÜSSEL
                Velmix: "Jetzt liegt dort nur noch Kleingeld aus der Zeit vor dem Euro."
            SonstWenn ESEL_FERTIG
                Velmix: "Mein Arm ist zu kurz. Ich brauche etwas zum Angeln."
            Sonst
                Velmix: "Nicht, solange jemand darauf liegt, der treten kann."
            EndeWenn
        Ablegen
            WennMerker ESEL_FERTIG
                Bei ANGEL
                    GibGegenstand ANGEL
                    SetzeMerker SCHLÜSSEL
                    NimmGegenstand SCHLÜSSEL
                    Ton "schloss.wav"
                    Text "Klong. Kratz. Klick!"
                    Velmix: "Petri Heil! Der Kellerschlüssel. Und ein Kaugummi, den ich wieder loslasse."
                Bei MAGNET
                    Velmix: "Der Magnet würde schon wollen. Aber ich komme nicht bis unten."
                Bei SEIL
                    Velmix: "Bis unten reicht das Seil. Nur hält sich der Schlüssel nicht daran fest."
                EndeBei
            Sonst
                Velmix: "Balduin liegt auf dem Gully. Alles, was ich ihm hinwerfe, frisst er."
            EndeWenn

    Objekt "Balduin"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 276 282, 332 280, 352 330, 400 336, 404 382, 252 412, 262 380, 298 372
        Rechts
            Velmix: "Balduin. Esel, Philosoph und ältestes Mitglied der Garten-AG."
        Links
            Gespräch
                Balduin: "Ah. Ein Mensch. Sie wollen sicher an den Gully."
                Velmix: "Wenn es keine Umstände macht."
                Balduin: "Alles macht Umstände. Darum liege ich ja."
                         "Aber für ein gelöstes Rätsel stehe ich auf. Aus Prinzip."
                Frage "Balduin kaut an einer Butterblume."
                      "Seine Rätsel löst man mit der Tastatur, Wort für Wort."
                    Antwort "Das Rätsel, bitte."
                        Marke RÄTSEL
                        Spiel ESEL ESEL_SIEG
                        Musik "hof.mid"
                        WennMerker ESEL_SIEG
                            Marke STEHT_AUF
                            Balduin: "Er gab auf. Sie nicht. Das nenne ich Bildung."
                                     "Einen Augenblick, die Hinterbeine schlafen noch."
                            SetzeMerker ESEL_FERTIG
                            RahmenZu
                            Rufe BALDUIN_STEHT
                            Velmix: "Er steht! Der Gully ist frei."
                            Springe FERTIG
                        Sonst
                            SetzeMerker ESEL_VERLOREN
                            Balduin: "Sie haben aufgegeben. Er übrigens auch. So nahe waren Sie dran."
                        EndeWenn
                    Antwort "Schieben."
                        WennMerker ESEL_VERLOREN
                            BöseÄndern 1
                            Balduin: "Au! Ich gehe ja schon. Aber ich denke mir mein Teil."
                            Springe STEHT_AUF
                        Sonst
                            Balduin: "Das haben schon größere Geister versucht. Fragen Sie erst das Rätsel."
                        EndeWenn
                    Schluss "Später."
                        Balduin: "Später. Mein Lieblingswort."
            EndeGespräch
            Marke FERTIG
        Ablegen
            Bei MÖHRE
                GibGegenstand MÖHRE
                SetzeMerker ESEL_FERTIG
                BöseÄndern -1
                Gespräch
                    Balduin: "Eine Möhre! Ohne Frage, ohne Gegenleistung?"
                             "Da stehe ich doch gleich anders da."
                EndeGespräch
                Rufe BALDUIN_STEHT
                Velmix: "Er steht! Der Gully ist frei."
            Bei KUCHEN
                Balduin: "Zucker vernebelt. Bringen Sie mir etwas mit Wurzel."

    Objekt "Balduin steht"
        Zeiger "mund1.ico"
        Inaktiv
        Fläche
            Vieleck 410 256, 462 256, 480 320, 550 330, 560 428, 430 428, 416 360
        Rechts
            Velmix: "Im Stehen sieht er aus wie jemand, der gleich eine Rede hält."
        Links
            Gespräch
                Balduin: "Man sieht so viel weiter von hier oben. Leider sieht man dann auch die Schule."
            EndeGespräch
        Ablegen
            Bei MÖHRE
                GibGegenstand MÖHRE
                BöseÄndern -1
                Balduin: "Und das, obwohl ich schon stehe. Sie sind ein guter Mensch."

    Objekt "Garten-Schild"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 166 350 206 376
        Rechts
            Velmix: "»Garten-AG. Nicht essen.« Balduin kann nicht lesen. Sagt er."

    Objekt "Salat"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 146 372 194 402
        Rechts
            Velmix: "Ein Salatkopf. Er sieht intelligenter aus als mancher aus der Parallelklasse."

    Objekt "Möhren"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 14 354 138 408
        Rechts
            Velmix: "Drei prächtige Möhren. Bio-Leistungskurs, angewandt."
        Links
            WennMerker MÖHRE
                Velmix: "Zwei lasse ich für die Garten-AG stehen."
            Sonst
                SetzeMerker MÖHRE
                NimmGegenstand MÖHRE
                Velmix: "Eine Möhre. Für einen guten Zweck mit langen Ohren."
            EndeWenn

    Objekt "Beet"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 0 384 216 446
        Rechts
            Velmix: "Das Hochbeet der Garten-AG. Hoch ist übertrieben, Beet auch."

    Objekt "Fahrrad"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 120 236 218 308
        Rechts
            Velmix: "Das rote Fahrrad! Sein Besitzer wird seit drei Jahren ausgerufen."
        Links
            Velmix: "Abgeschlossen. Mit drei Schlössern und einem Drohbrief."

    Objekt "Efeu"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 186 66 222 236
        Rechts
            Velmix: "Der Efeu will ins Lehrerzimmer. Noch zwei Sommer, dann hat er es."

    Objekt "Tor"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 302 178 414 256
        Rechts
            Velmix: "Das Tor nach draußen. Morgen gehe ich da durch und nie wieder zurück. Schluck."
        Links
            Velmix: "Nicht ohne die CD."

    Objekt "Kirchturm"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 424 122 452 216
        Rechts
            Velmix: "Der Kirchturm von Bramhof. Die einzige Uhr, die sich Mühe gibt."

    Objekt "Bank"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 578 312 630 362
        Rechts
            Velmix: "Ein vergessenes Heft: »Mein Leben als Kreide«. Band drei."

    Objekt "Herz"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 536 252 566 282
        Rechts
            Velmix: "Ein Herz in der Rinde. Ohne Namen. Da war jemand vorsichtig."

    Objekt "Kastanie"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 412 110, 500 40, 620 30, 640 70, 640 196, 600 196, 592 330, 520 330, 530 200, 430 160
        Rechts
            Velmix: "Die Kastanie. Jede Klasse behauptet, sie gepflanzt zu haben."

    Objekt "Schwalben"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 296 64 396 126
        Rechts
            Velmix: "Schwalben. Sie haben schon Ferien."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 24 170, 60 154, 100 168, 102 292, 24 326
        Rechts
            Velmix: "Zurück in den Flur."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "moehre.bmp" heißt MÖHRE
    Rechts
        Velmix: "Eine Möhre. Knackig, orange, unbestechlich. Also ideal zum Bestechen."
    Links
        Velmix: "Ich hatte schon Kantine."

Gegenstand "schluessel.bmp" heißt SCHLÜSSEL
    Rechts
        Velmix: "Der Kellerschlüssel. Auf dem Anhänger steht »UG«. Untergrund?"
