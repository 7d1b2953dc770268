// The corridor: every way leads through it.

Raum "Flur.lsd"
    Bild "flur.jpg"
    Start
        Musik "flur.mid"
        WennMerker KELLER_OFFEN
            SetzeZeiger "Kellertreppe" "tuer1.ico"
        EndeWenn
        WennMerker nicht FLUR_GESEHEN
            SetzeMerker FLUR_GESEHEN
            Text "Der Flur im Erdgeschoss. Frisch gewischt."
                 "Wer vorsichtig ist, merkt sich die Stelle: mit F2. Mit F1 steht er wieder da."
        EndeWenn

    Objekt "Herr Grobbel"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 392 182, 436 182, 446 260, 440 378, 374 378, 378 230
        Rechts
            Velmix: "Herr Grobbel, der Hausmeister."
                    "An seinem Ring fehlt etwas: die Schlüssel."
        Links
            Gespräch
                WennMerker GROBBEL_KENNT
                    WennMerker KELLER_OFFEN
                        Grobbel: "Na, Junge? Schon unten gewesen? Zieh den Kopf ein. Das Rohr ist von 1912."
                    Sonst
                        Grobbel: "Der Schlüssel liegt im Gully im Hof. Da kommt man nicht mit der Hand hinein."
                                 "Man müsste angeln. Mit etwas, das Eisen mag."
                    EndeWenn
                Sonst
                    SetzeMerker GROBBEL_KENNT
                    Velmix: "Herr Grobbel, haben Sie eine CD gesehen?"
                    Grobbel: "Heute Nacht hat es im Keller gebrummt. Bei dem alten Zentrox."
                             "Der ist seit 1979 abgeschaltet. Ich habe selbst den Stecker gezogen."
                    Velmix: "Dann lassen Sie mich in den Keller!"
                    Grobbel: "Tät ich ja. Aber der Schlüssel ist mir in den Gully gefallen. Im Hof."
                             "Und auf dem Gully liegt der Esel."
                    Velmix: "Das klingt wie eine Ausrede."
                    Grobbel: "Es ist eine gute Ausrede. Sie ist wahr."
                EndeWenn
            EndeGespräch
        Ablegen
            Bei KUCHEN
                Grobbel: "Lass mal. Ich esse nur, was ich nicht aufwischen muss."
            Bei SCHLÜSSEL
                Grobbel: "Da ist er ja! Behalt ihn. Ich bücke mich heute nicht mehr."

    Objekt "Eimer"
        Zeiger "hand1.ico"
        Fläche
            Vieleck 306 334, 362 334, 358 400, 310 400
        Rechts
            Velmix: "Wasser, ein Schuss Seife und das Gesicht von Herrn Grobbel, verkehrt herum."
        Links
            WennMerker EIMER
                Velmix: "Der Eimer und ich sind fertig miteinander."
            Sonst
                Auswahl "Ein voller Eimer. Herr Grobbel dreht mir den Rücken zu."
                    Fall "Umtreten!"
                        SetzeMerker EIMER
                        BöseÄndern 1
                        Ton "platsch.wav"
                        Text "Platsch."
                        Grobbel: "Junge! Das war der ganze Vormittag!"
                    Fall "Wischen helfen."
                        SetzeMerker EIMER
                        BöseÄndern -1
                        Text "Wisch. Wisch. Wring."
                        Grobbel: "Na so was. In dreißig Jahren der Erste. Das merk ich mir."
                    Fall "In Ruhe lassen."
                        Velmix: "Vorerst ist das ein Eimer und sonst nichts."
                EndeAuswahl
            EndeWenn

    Objekt "Warnschild"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 242 370, 262 370, 292 440, 282 454, 224 454
        Rechts
            Velmix: "»NASS«. Ein Schild, das Wort hält."

    Objekt "Schultasche"
        Zeiger "hand1.ico"
        Fläche
            Vieleck 56 414, 60 350, 84 338, 108 338, 132 352, 136 412
        Rechts
            Velmix: "Meine alte Schultasche. Drei Jahre Oberstufe, davon zwei Kilo Krümel."
        Links
            WennMerker ZETTEL
                Velmix: "Jetzt ist nur noch der Turnbeutel drin. Den fasse ich nicht an."
            Sonst
                SetzeMerker ZETTEL
                NimmGegenstand SPICKZETTEL
                Velmix: "Sieh an: mein Spickzettel aus der Zehnten. Pi, auf vierzig Stellen."
                        "Ich habe ihn nie benutzt. Ehrlich."
            EndeWenn

    Objekt "Hefte"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 138 388 176 420
        Rechts
            Velmix: "Zwei Hefte. Das grüne ist Bio, das blaue ist auch Bio, aber abgeschrieben."

    Objekt "Bank"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 10 420, 26 402, 206 402, 214 420, 214 434, 188 476, 34 476
        Rechts
            Velmix: "Auf dieser Bank habe ich die halbe Zehnte abgeschrieben."
                    "Die andere Hälfte auf der nächsten."

    Objekt "Spinde"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 180 156 278 330
        Rechts
            Velmix: "Drei Spinde. In einem wohnt angeblich ein Pausenbrot von 1996."
        Links
            Velmix: "Abgeschlossen. Von innen, wie mir scheint."

    Objekt "Schwarzes Brett"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 184 58 276 134
        Rechts
            ZoomIN 166 42 294 138
            Velmix: "»Suche Mitfahrgelegenheit in die Zukunft. Biete Kekse.«"
            Velmix: "»Bruhks entlaufen. Nicht füttern. Nicht ansprechen. Dr. Ampulla.«"
            ZoomOUT 166 42 294 138

    Objekt "Uhr"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 320 58 358 94
        Rechts
            Velmix: "Kurz nach zwölf. Oder kurz vor vier in der Aula. Such dir was aus."

    Objekt "Lautsprecher"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 390 60 424 94
        Rechts
            Velmix: "Aus diesem Kasten kam drei Jahre lang nur:"
                    "»Der Besitzer des roten Fahrrads bitte.«"

    Objekt "Chemietür"
        Zeiger "tuer1.ico"
        Fläche
            Rechteck 78 106 178 330
        Rechts
            Velmix: "Chemie. Hinter der Tür zischt es. Wie immer."
        Links
            Raumwechsel "Chemie.lsd"

    Objekt "Bibliothekstür"
        Zeiger "tuer1.ico"
        Fläche
            Rechteck 290 106 390 330
        Rechts
            Velmix: "Die Bibliothek. Selbst das Schild flüstert."
        Links
            Raumwechsel "Bibliothek.lsd"

    Objekt "Hoftür"
        Zeiger "tuer1.ico"
        Fläche
            Rechteck 472 122 546 252
        Rechts
            Velmix: "Die Tür zum Hof. Da hinten scheint das Leben weiterzugehen."
        Links
            Raumwechsel "Hof.lsd"

    Objekt "Sporthallentür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 560 126, 602 108, 602 320, 560 264
        Rechts
            Velmix: "Zur Sporthalle. Der Geruch kommt einem entgegen, um einen zu begrüßen."
        Links
            Raumwechsel "Sporthalle.lsd"

    Objekt "Plakat"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 614 138 640 198
        Rechts
            Velmix: "»Tischtennis-Turnier! Kessa gegen alle!« Alle haben abgesagt."

    Objekt "Kellertreppe"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 486 332, 640 342, 640 480, 478 480
        Rechts
            Velmix: "Die Treppe in den Keller. Von unten riecht es nach warmem Staub."
        Links
            WennMerker KELLER_OFFEN
                Raumwechsel "Keller.lsd"
            Sonst
                Ton "ruetteln.wav"
                Text "Rüttel. Rüttel."
                Velmix: "Am Fuß der Treppe ist ein Gitter. Abgeschlossen."
            EndeWenn
        Ablegen
            Bei SCHLÜSSEL
                GibGegenstand SCHLÜSSEL
                SetzeMerker KELLER_OFFEN
                SetzeZeiger "Kellertreppe" "tuer1.ico"
                Ton "schloss.wav"
                Text "Klack."
                Velmix: "Offen! Es weht warm herauf. Und irgendetwas summt."

    Objekt "Aulatür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 6 92, 50 104, 50 336, 6 350
        Rechts
            Velmix: "Zurück in die Aula."
        Links
            Raumwechsel "Start.lsd"
