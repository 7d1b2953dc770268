// The corridor: every way leads through it.

Raum "Flur.lsd"
    Bild "flur.jpg"
    Start
        Musik "flur.mid"
        WennMerker FLUR_GESEHEN
        Sonst
            SetzeMerker FLUR_GESEHEN
            Text "Der Flur im Erdgeschoss. Frisch gewischt."
        EndeWenn

    Objekt "Herr Grobbel"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 392 182, 436 182, 446 260, 440 378, 374 378, 378 230
        Rechts
            Ton "velmix-flur-01.wav"
            Text "Herr Grobbel, der Hausmeister. An seinem Ring fehlt etwas: die Schlüssel."
        Links
            WennMerker GROBBEL_KENNT
                RahmenAuf
                Portrait links "grobbel.jpg"
                Portrait rechts "velmix.jpg"
                Ton "grobbel-flur-01.wav"
                Text "$BNa, Junge? Hast du sie?"
                RahmenZu
            Sonst
                SetzeMerker GROBBEL_KENNT
                RahmenAuf
                Portrait links "grobbel.jpg"
                Portrait rechts "velmix.jpg"
                Ton "velmix-flur-02.wav"
                Text "Herr Grobbel, haben Sie eine CD gesehen?"
                Portrait links "grobbel.jpg"
                Portrait rechts "velmix.jpg"
                Ton "grobbel-flur-02.wav"
                Text "$BHeute Nacht hat es im Keller gebrummt. Bei dem alten Zentrox."
                     "$BDer ist seit 1979 abgeschaltet. Ich habe selbst den Stecker gezogen."
                Portrait links "grobbel.jpg"
                Portrait rechts "velmix.jpg"
                Ton "velmix-flur-03.wav"
                Text "Dann lassen Sie mich in den Keller!"
                Portrait links "grobbel.jpg"
                Portrait rechts "velmix.jpg"
                Ton "grobbel-flur-03.wav"
                Text "$BTät ich ja. Aber der Schlüssel liegt im Gully. Im Hof."
                     "$BUnd auf dem Gully liegt der Esel."
                RahmenZu
            EndeWenn

    Objekt "Eimer"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 306 334, 362 334, 358 400, 310 400
        Rechts
            Ton "velmix-flur-04.wav"
            Text "Wasser, ein Schuss Seife und das Gesicht von Herrn Grobbel, verkehrt herum."

    Objekt "Warnschild"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 242 370, 262 370, 292 440, 282 454, 224 454
        Rechts
            Ton "velmix-flur-05.wav"
            Text "»NASS«. Ein Schild, das Wort hält."

    Objekt "Schultasche"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 56 414, 60 350, 84 338, 108 338, 132 352, 174 392, 172 416
        Rechts
            Ton "velmix-flur-06.wav"
            Text "Meine alte Schultasche. Drei Jahre Oberstufe, davon zwei Kilo Krümel."

    Objekt "Bank"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 10 420, 26 402, 206 402, 214 420, 214 434, 188 476, 34 476
        Rechts
            Ton "velmix-flur-07.wav"
            Text "Auf dieser Bank habe ich die halbe Zehnte abgeschrieben. Die andere Hälfte auf der nächsten."

    Objekt "Spinde"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 180 156 278 330
        Rechts
            Ton "velmix-flur-08.wav"
            Text "Drei Spinde. In einem wohnt angeblich ein Pausenbrot von 1996."

    Objekt "Schwarzes Brett"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 184 58 276 134
        Rechts
            ZoomIN 166 42 294 138
            Ton "velmix-flur-09.wav"
            Text "»Suche Mitfahrgelegenheit in die Zukunft. Biete Kekse.«"
            ZoomOUT 166 42 294 138

    Objekt "Uhr"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 320 58 358 94
        Rechts
            Ton "velmix-flur-10.wav"
            Text "Kurz nach zwölf. Oder kurz vor vier in der Aula. Such dir was aus."

    Objekt "Lautsprecher"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 390 60 424 94
        Rechts
            Ton "velmix-flur-11.wav"
            Text "Aus diesem Kasten kam drei Jahre lang nur: »Der Besitzer des roten Fahrrads bitte.«"

    Objekt "Chemietür"
        Zeiger "tuer1.ico"
        Fläche
            Rechteck 78 106 178 330
        Rechts
            Ton "velmix-flur-12.wav"
            Text "Chemie. Hinter der Tür zischt es. Wie immer."

    Objekt "Bibliothekstür"
        Zeiger "tuer1.ico"
        Fläche
            Rechteck 290 106 390 330
        Rechts
            Ton "velmix-flur-13.wav"
            Text "Die Bibliothek. Selbst das Schild flüstert."

    Objekt "Hoftür"
        Zeiger "tuer1.ico"
        Fläche
            Rechteck 472 122 546 252
        Rechts
            Ton "velmix-flur-14.wav"
            Text "Die Tür zum Hof. Da hinten scheint das Leben weiterzugehen."

    Objekt "Sporthallentür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 560 126, 602 108, 602 320, 560 264
        Rechts
            Ton "velmix-flur-15.wav"
            Text "Zur Sporthalle. Der Geruch kommt einem entgegen, um einen zu begrüßen."

    Objekt "Plakat"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 614 138 640 198
        Rechts
            Ton "velmix-flur-16.wav"
            Text "»Tischtennis-Turnier! Kessa gegen alle!« Alle haben abgesagt."

    Objekt "Kellertreppe"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 486 332, 640 342, 640 480, 478 480
        Rechts
            Ton "velmix-flur-17.wav"
            Text "Die Treppe in den Keller. Von unten riecht es nach warmem Staub."

    Objekt "Aulatür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 6 92, 50 104, 50 336, 6 350
        Rechts
            Text "Zurück in die Aula."
        Links
            Raumwechsel "Start.lsd"
