// The chemistry room: catch the bruhks, brew the potion.

Raum "Chemie.lsd"
    Bild "chemie.jpg"
    Start
        Musik "chemie.mid"
        WennMerker BRUHKS_FERTIG
            ZeigBild "chemie_ruhig.jpg"
            ObjektAus "Bruhk"
        Sonst
            WennMerker CHEMIE_GESEHEN
            Sonst
                SetzeMerker CHEMIE_GESEHEN
                Ton "ampulla-chemie-01.wav"
                Text "$7Vorsicht! Kopf runter! Die Bruhks sind los!"
            EndeWenn
        EndeWenn

    Objekt "Bruhk"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 84 112 144 154
            Rechteck 188 196 232 232
            Rechteck 352 28 396 60
        Rechts
            Ton "velmix-chemie-01.wav"
            Text "Ein Bruhk. Halb Fledermaus, halb Wollknäuel, ganz schlecht erzogen."
        Links
            Ton "velmix-chemie-02.wav"
            Text "Mit der Hand fängt man die nicht. Da muss man sich richtig hineinsteigern."

    Objekt "Dr. Ampulla"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 250 160, 296 144, 338 176, 326 216, 332 328, 268 328, 262 240, 246 200
        Rechts
            Ton "velmix-chemie-03.wav"
            Text "Dr. Ampulla. Die Frisur ist kein Unfall. Die Frisur ist das Ergebnis."
        Links
            RahmenAuf
            WennMerker BRUHKS_FERTIG
                Marke FRAGEN
                Einbinden "gesicht/ampulla.teil"
                Auswahl "Dr. Ampulla schüttelt ein Reagenzglas, das besser nicht geschüttelt würde."
                Fall "Was ergibt Cola mit Minze?"
                    Einbinden "gesicht/ampulla.teil"
                    Ton "ampulla-chemie-02.wav"
                    Text "$7Etwas ganz Wunderbares! Man muss es nur erhitzen."
                         "$7Es verleiht die Kraft von zehn Sportlehrern. Und einen Schnurrbart, manchmal."
                    Springe FRAGEN
                Fall "Was wissen Sie über Zentrox?"
                    Einbinden "gesicht/ampulla.teil"
                    Ton "ampulla-chemie-03.wav"
                    Text "$7Ein feines Gerät! Es konnte Schach, Latein und beleidigt sein."
                         "$7Am liebsten hatte er seine Freundschaftsdiskette. Tirsa müsste sie noch haben."
                    Springe FRAGEN
                Fall "Auf Wiedersehen."
                    Einbinden "gesicht/ampulla.teil"
                    Ton "ampulla-chemie-04.wav"
                    Text "$7Auf Wiederleuchten!"
                EndeAuswahl
            Sonst
                Einbinden "gesicht/ampulla.teil"
                Ton "ampulla-chemie-05.wav"
                Text "$7Einundzwanzig Stück! Der Deckel war nur ganz kurz offen. Seit gestern."
                     "$7Wer sie alle fängt, bekommt meinen besten Magneten!"
                Einbinden "gesicht/ampulla.teil"
                Auswahl "Es flattert."
                Fall "Ich fange sie!"
                    Marke JAGD
                    Spiel BRUHKS BRUHKS_SIEG
                    Musik "chemie.mid"
                    WennMerker BRUHKS_SIEG
                        Einbinden "gesicht/ampulla.teil"
                        Ton "ampulla-chemie-06.wav"
                        Text "$7Alle einundzwanzig! Und nur drei davon im Haar!"
                        Marke GEFANGEN
                        SetzeMerker BRUHKS_FERTIG
                        NimmGegenstand "magnet.bmp"
                        Einbinden "gesicht/ampulla.teil"
                        Ton "ampulla-chemie-07.wav"
                        Text "$7Hier, der Magnet. Halten Sie ihn von Ihrer Uhr fern. Und von meiner Plombe."
                        RahmenZu
                        ZeigBild "chemie_ruhig.jpg"
                        ObjektAus "Bruhk"
                        Springe FERTIG
                    Sonst
                        Einbinden "gesicht/ampulla.teil"
                        Ton "ampulla-chemie-08.wav"
                        Text "$7Zu langsam! Sie haben sich schon wieder vermehrt. Glaube ich."
                        Einbinden "gesicht/ampulla.teil"
                        Auswahl "Die Bruhks kichern."
                        Fall "Noch einmal!"
                            Springe JAGD
                        Fall "Licht aus und mit dem Kuchenblech klappern."
                            BöseÄndern 1
                            Ton "klong.wav"
                            Text "KLONG! KLONG! KLONG!"
                            Einbinden "gesicht/ampulla.teil"
                            Ton "ampulla-chemie-09.wav"
                            Text "$7Das hat gewirkt. Aber jetzt haben die Ärmsten Angst vor Backwaren."
                            Springe GEFANGEN
                        Option "Später."
                        EndeAuswahl
                    EndeWenn
                Option "Lieber nicht."
                EndeAuswahl
            EndeWenn
            RahmenZu
            Marke FERTIG
        Ablegen
            WennParameter KUCHEN
                Ton "ampulla-chemie-10.wav"
                Text "$7Oh, Kohlenhydrate! Leider esse ich nichts, was ich nicht vorher gewogen habe."
            Sonst
                Fehlerton
            EndeWenn

    Objekt "Kolben"
        Zeiger "rad1.ico"
        Fläche
            Vieleck 118 236, 140 236, 162 280, 160 366, 98 366, 98 280
        Rechts
            Ton "velmix-chemie-04.wav"
            Text "Ein Brenner, ein Dreibein, ein Kolben. Das Rosa darin blubbert im Dreivierteltakt."
        Links
            Ton "velmix-chemie-05.wav"
            Text "Ich fasse nichts an, was von selbst leuchtet."
        Ablegen
            WennParameter MISCHUNG
                GibGegenstand "mischung.bmp"
                NimmGegenstand "zaubertrank.bmp"
                Ton "blubber.wav"
                Text "Blubber. Blubber. PUFF!"
                Ton "ampulla-chemie-11.wav"
                Text "$7Sie haben es getan! Der Zaubertrank! Nicht unterrichten, nur trinken!"
            Sonst
                WennParameter COLA
                    Ton "velmix-chemie-06.wav"
                    Text "Warme Cola? Da fehlt noch etwas Grünes."
                Sonst
                    WennParameter MINZE
                        Ton "velmix-chemie-07.wav"
                        Text "Das gäbe Tee. Den gibt es im Lehrerzimmer genug."
                    Sonst
                        Fehlerton
                    EndeWenn
                EndeWenn
            EndeWenn

    Objekt "Minze"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 54 154 96 216
        Rechts
            Ton "velmix-chemie-08.wav"
            Text "Minze. Die einzige Pflanze, die hier freiwillig wächst."
        Links
            WennMerker MINZE
                Ton "velmix-chemie-09.wav"
                Text "Ein Stängel genügt. Sonst riecht die ganze Schule nach Zahnpasta."
            Sonst
                SetzeMerker MINZE
                NimmGegenstand "minze.bmp"
                Ton "velmix-chemie-10.wav"
                Text "Ein Stängel Minze. Riecht nach Ferien."
            EndeWenn

    Objekt "Schnapper"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 12 150 46 226
        Rechts
            Ton "velmix-chemie-11.wav"
            Text "Diese Pflanze hat Zähne. Sie hat letztes Jahr den Lehrplan gefressen."
        Links
            Ton "velmix-chemie-12.wav"
            Text "Nein. Ich brauche die Finger noch."

    Objekt "Fenster"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 14 36, 80 66, 80 150, 14 150
        Rechts
            Ton "velmix-chemie-13.wav"
            Text "Offen stehen darf es nicht. Wegen der Bruhks. Und wegen der Nachbarn."

    Objekt "Tafel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 142 70 342 142
            Rechteck 142 142 240 196
        Rechts
            ZoomIN 132 62 348 200
            Ton "velmix-chemie-14.wav"
            Text "»Cola plus Minze gleich Fragezeichen. NIE WIEDER.«"
                 "Und darunter ein Stern. Also hat es sich gelohnt."
            ZoomOUT 132 62 348 200

    Objekt "Periodensystem"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 400 60 534 154
        Rechts
            Ton "velmix-chemie-15.wav"
            Text "Das Periodensystem. Der Fleck unten rechts ist ein neues Element."

    Objekt "Skelett"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 392 156 448 300
        Rechts
            Ton "velmix-chemie-16.wav"
            Text "Herr Knorr. Er wartet hier seit 1958 auf die Rückgabe seiner Klausur."
        Links
            Ton "velmix-chemie-17.wav"
            Text "Kalte Hand, fester Druck. Ein Gentleman."

    Objekt "Giftschrank"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 462 166 538 258
        Rechts
            Ton "velmix-chemie-18.wav"
            Text "Der Giftschrank. Ganz oben steht der Lehrerkaffee."
        Links
            Ton "velmix-chemie-19.wav"
            Text "Abgeschlossen. Das ist vermutlich gut so."

    Objekt "Terrarium"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 450 260 600 372
        Rechts
            WennMerker BRUHKS_FERTIG
                Ton "velmix-chemie-20.wav"
                Text "Alle wieder drin. Sie zählen die Stunden bis zum nächsten offenen Deckel."
            Sonst
                Ton "velmix-chemie-21.wav"
                Text "Das Terrarium der Bruhks. Der Deckel steht offen, die Bruhks stehen aus."
            EndeWenn

    Objekt "Destille"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 336 256 424 368
        Rechts
            Ton "velmix-chemie-22.wav"
            Text "Hier wird etwas Grünes sehr langsam zu etwas anderem Grünen."

    Objekt "Reagenzgläser"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 168 308 236 362
        Rechts
            Ton "velmix-chemie-23.wav"
            Text "Gelb, grün, rot, blau. Das sind die vier Hauptgeschmäcker der Chemie."

    Objekt "Mikroskop"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 30 272 92 378
        Rechts
            Ton "velmix-chemie-24.wav"
            Text "Ich sehe eine Wimper. Meine. Von innen."

    Objekt "Buch"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 230 362 344 392
        Rechts
            Ton "velmix-chemie-25.wav"
            Text "»Versuche, die ich überlebt habe«. Das letzte Kapitel ist noch leer."

    Objekt "Schubladen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 16 400 624 480
        Rechts
            Ton "velmix-chemie-26.wav"
            Text "Auf jeder Schublade steht »Vorsicht«. Auf einer steht »Wirklich Vorsicht«."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 560 126, 616 106, 616 260, 560 260
        Rechts
            Ton "velmix-chemie-27.wav"
            Text "Frische Luft: durch diese Tür."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "minze.bmp"
    Rechts
        Ton "velmix-chemie-28.wav"
        Text "Ein Stängel Minze. Sie kitzelt in der Nase."
    Ablegen
        WennParameter COLA
            GibGegenstand "cola.bmp"
            GibGegenstand "minze.bmp"
            NimmGegenstand "mischung.bmp"
            Ton "blubber.wav"
            Text "Zisch. Blubber."
            Ton "velmix-chemie-29.wav"
            Text "Es schäumt. Es schäumt sehr. Jetzt müsste man es nur noch erhitzen."
        Sonst
            Fehlerton
        EndeWenn

Gegenstand "mischung.bmp"
    Rechts
        Ton "velmix-chemie-30.wav"
        Text "Cola mit Minze. Es will irgendwohin. Hoffentlich nicht zu mir."
    Links
        Ton "velmix-chemie-31.wav"
        Text "So kalt? Da fehlt noch das Feuer."

Gegenstand "zaubertrank.bmp"
    Rechts
        Ton "velmix-chemie-32.wav"
        Text "Der Zaubertrank. Auf dem Kolben steht: »Vor dem Sport einnehmen«."
    Links
        Ton "velmix-chemie-33.wav"
        Text "Nicht hier. Wer weiß, was ich sonst alles hochhebe."

Gegenstand "magnet.bmp"
    Rechts
        Ton "velmix-chemie-34.wav"
        Text "Ein Magnet. Er zieht mich an. Nein, meine Gürtelschnalle."
    Ablegen
        WennParameter SEIL
            GibGegenstand "seil.bmp"
            GibGegenstand "magnet.bmp"
            NimmGegenstand "angel.bmp"
            Ton "velmix-chemie-35.wav"
            Text "Seil an Magnet: eine Angel für Schlüssel. Physik-LK, ich danke dir."
        Sonst
            Fehlerton
        EndeWenn

Gegenstand "angel.bmp"
    Rechts
        Ton "velmix-chemie-36.wav"
        Text "Eine Angel. Köder braucht sie nicht, nur Eisen."
