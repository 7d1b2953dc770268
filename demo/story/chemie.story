// The chemistry room: catch the bruhks, brew the potion.

Raum "Chemie.lsd"
    Bild "chemie.jpg"
    Start
        Musik "chemie.mid"
        WennMerker BRUHKS_FERTIG
            ZeigBild "chemie_ruhig.jpg"
            ObjektAus "Bruhk"
        SonstWenn nicht CHEMIE_GESEHEN
            SetzeMerker CHEMIE_GESEHEN
            Ampulla: "Vorsicht! Kopf runter! Die Bruhks sind los!"
        EndeWenn

    Objekt "Bruhk"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 84 112 144 154
            Rechteck 188 196 232 232
            Rechteck 352 28 396 60
        Rechts
            Velmix: "Ein Bruhk. Halb Fledermaus, halb Wollknäuel, ganz schlecht erzogen."
        Links
            Velmix: "Mit der Hand fängt man die nicht. Da muss man sich richtig hineinsteigern."

    Objekt "Dr. Ampulla"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 250 160, 296 144, 338 176, 326 216, 332 328, 268 328, 262 240, 246 200
        Rechts
            Velmix: "Dr. Ampulla. Die Frisur ist kein Unfall. Die Frisur ist das Ergebnis."
        Links
            Gespräch
                WennMerker BRUHKS_FERTIG
                    Frage "Dr. Ampulla schüttelt ein Reagenzglas, das besser nicht geschüttelt würde."
                        Antwort "Was ergibt Cola mit Minze?"
                            Ampulla: "Etwas ganz Wunderbares! Man muss es nur erhitzen."
                                     "Es verleiht die Kraft von zehn Sportlehrern. Und einen Schnurrbart, manchmal."
                        Antwort "Was wissen Sie über Zentrox?"
                            Ampulla: "Ein feines Gerät! Es konnte Schach, Latein und beleidigt sein."
                                     "Am liebsten hatte er seine Freundschaftsdiskette. Tirsa müsste sie noch haben."
                        Schluss "Auf Wiedersehen."
                            Ampulla: "Auf Wiederleuchten!"
                    EndeFrage
                Sonst
                    Ampulla: "Einundzwanzig Stück! Der Deckel war nur ganz kurz offen. Seit gestern."
                             "Wer sie alle fängt, bekommt meinen besten Magneten!"
                    Auswahl "Es flattert."
                            "Wer draufklickt, hat sie. Zwanzig Sekunden lang hat er Zeit."
                        Fall "Ich fange sie!"
                            Marke JAGD
                            Spiel BRUHKS BRUHKS_SIEG
                            Musik "chemie.mid"
                            WennMerker BRUHKS_SIEG
                                Ampulla: "Alle einundzwanzig! Und nur drei davon im Haar!"
                                Marke GEFANGEN
                                SetzeMerker BRUHKS_FERTIG
                                NimmGegenstand MAGNET
                                Ampulla: "Hier, der Magnet. Halten Sie ihn von Ihrer Uhr fern. Und von meiner Plombe."
                                RahmenZu
                                ZeigBild "chemie_ruhig.jpg"
                                ObjektAus "Bruhk"
                                Springe FERTIG
                            Sonst
                                Ampulla: "Zu langsam! Sie haben sich schon wieder vermehrt. Glaube ich."
                                Auswahl "Die Bruhks kichern."
                                    Fall "Noch einmal!"
                                        Springe JAGD
                                    Fall "Licht aus und mit dem Kuchenblech klappern."
                                        BöseÄndern 1
                                        Ton "klong.wav"
                                        Text "KLONG! KLONG! KLONG!"
                                        Ampulla: "Das hat gewirkt. Aber jetzt haben die Ärmsten Angst vor Backwaren."
                                        Springe GEFANGEN
                                    Option "Später."
                                EndeAuswahl
                            EndeWenn
                        Option "Lieber nicht."
                    EndeAuswahl
                EndeWenn
            EndeGespräch
            Marke FERTIG
        Ablegen
            Bei KUCHEN
                Ampulla: "Oh, Kohlenhydrate! Leider esse ich nichts, was ich nicht vorher gewogen habe."

    Objekt "Kolben"
        Zeiger "rad1.ico"
        Fläche
            Vieleck 118 236, 140 236, 162 280, 160 366, 98 366, 98 280
        Rechts
            Velmix: "Ein Brenner, ein Dreibein, ein Kolben. Das Rosa darin blubbert im Dreivierteltakt."
        Links
            Velmix: "Ich fasse nichts an, was von selbst leuchtet."
        Ablegen
            Bei MISCHUNG
                GibGegenstand MISCHUNG
                NimmGegenstand ZAUBERTRANK
                SetzeMerker GEBRAUT
                Ton "blubber.wav"
                Text "Blubber. Blubber. PUFF!"
                Ampulla: "Sie haben es getan! Der Zaubertrank! Nicht unterrichten, nur trinken!"
            Bei COLA
                Velmix: "Warme Cola? Da fehlt noch etwas Grünes."
            Bei MINZE
                Velmix: "Das gäbe Tee. Den gibt es im Lehrerzimmer genug."

    Objekt "Minze"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 54 154 96 216
        Rechts
            Velmix: "Minze. Die einzige Pflanze, die hier freiwillig wächst."
        Links
            WennMerker MINZE
                Velmix: "Ein Stängel genügt. Sonst riecht die ganze Schule nach Zahnpasta."
            Sonst
                SetzeMerker MINZE
                NimmGegenstand MINZE
                Velmix: "Ein Stängel Minze. Riecht nach Ferien."
            EndeWenn

    Objekt "Schnapper"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 12 150 46 226
        Rechts
            Velmix: "Diese Pflanze hat Zähne. Sie hat letztes Jahr den Lehrplan gefressen."
        Links
            Velmix: "Nein. Ich brauche die Finger noch."

    Objekt "Fenster"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 14 36, 80 66, 80 150, 14 150
        Rechts
            Velmix: "Offen stehen darf es nicht. Wegen der Bruhks. Und wegen der Nachbarn."

    Objekt "Tafel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 142 70 342 142
            Rechteck 142 142 240 196
        Rechts
            ZoomIN 132 62 348 200
            Velmix: "»Cola plus Minze gleich Fragezeichen. NIE WIEDER.«"
                    "Und darunter ein Stern. Also hat es sich gelohnt."
            ZoomOUT 132 62 348 200

    Objekt "Periodensystem"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 400 60 534 154
        Rechts
            Velmix: "Das Periodensystem. Der Fleck unten rechts ist ein neues Element."

    Objekt "Skelett"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 392 156 448 300
        Rechts
            Velmix: "Herr Knorr. Er wartet hier seit 1958 auf die Rückgabe seiner Klausur."
        Links
            Velmix: "Kalte Hand, fester Druck. Ein Gentleman."

    Objekt "Giftschrank"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 462 166 538 258
        Rechts
            Velmix: "Der Giftschrank. Ganz oben steht der Lehrerkaffee."
        Links
            Velmix: "Abgeschlossen. Das ist vermutlich gut so."

    Objekt "Terrarium"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 450 260 600 372
        Rechts
            WennMerker BRUHKS_FERTIG
                Velmix: "Alle wieder drin. Sie zählen die Stunden bis zum nächsten offenen Deckel."
            Sonst
                Velmix: "Das Terrarium der Bruhks. Der Deckel steht offen, die Bruhks stehen aus."
            EndeWenn

    Objekt "Destille"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 336 256 424 368
        Rechts
            Velmix: "Hier wird etwas Grünes sehr langsam zu etwas anderem Grünen."

    Objekt "Reagenzgläser"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 168 308 236 362
        Rechts
            Velmix: "Gelb, grün, rot, blau. Das sind die vier Hauptgeschmäcker der Chemie."

    Objekt "Mikroskop"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 30 272 92 378
        Rechts
            Velmix: "Ich sehe eine Wimper. Meine. Von innen."

    Objekt "Buch"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 230 362 344 392
        Rechts
            Velmix: "»Versuche, die ich überlebt habe«. Das letzte Kapitel ist noch leer."

    Objekt "Schubladen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 16 400 624 480
        Rechts
            Velmix: "Auf jeder Schublade steht »Vorsicht«. Auf einer steht »Wirklich Vorsicht«."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 560 126, 616 106, 616 260, 560 260
        Rechts
            Velmix: "Frische Luft: durch diese Tür."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "minze.bmp"
    Rechts
        Velmix: "Ein Stängel Minze. Sie kitzelt in der Nase."

// Whichever goes into the other: each way has a take of its own.
Kombiniere COLA MINZE ergibt "mischung.bmp"
    Ton "blubber.wav"
    Text "Zisch. Blubber."
    Bei COLA
        Velmix: "Es schäumt. Es schäumt sehr. Jetzt müsste man es nur noch erhitzen."
    Sonst
        Velmix: "Es schäumt. Es schäumt sehr. Jetzt müsste man es nur noch erhitzen."
    EndeBei

Gegenstand "mischung.bmp"
    Rechts
        Velmix: "Cola mit Minze. Es will irgendwohin. Hoffentlich nicht zu mir."
    Links
        Velmix: "So kalt? Da fehlt noch das Feuer."

Gegenstand "zaubertrank.bmp"
    Rechts
        Velmix: "Der Zaubertrank. Auf dem Kolben steht: »Vor dem Sport einnehmen«."
    Links
        Velmix: "Nicht hier. Wer weiß, was ich sonst alles hochhebe."

Gegenstand "magnet.bmp"
    Rechts
        Velmix: "Ein Magnet. Er zieht mich an. Nein, meine Gürtelschnalle."

Kombiniere SEIL MAGNET ergibt "angel.bmp"
    Bei SEIL
        Velmix: "Seil an Magnet: eine Angel für Schlüssel. Physik-LK, ich danke dir."
    Sonst
        Velmix: "Magnet an Seil: eine Angel für Schlüssel. Physik-LK, ich danke dir."
    EndeBei

Gegenstand "angel.bmp"
    Rechts
        Velmix: "Eine Angel. Köder braucht sie nicht, nur Eisen."
