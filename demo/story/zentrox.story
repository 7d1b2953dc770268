// The computer room: the count-down, the disc, the jump.

Raum "Zentrox.lsd"
    Bild "rechner.jpg"
    Start
        Musik "zentrox.mid"
        LöscheMerker TICK1
        LöscheMerker TICK2
        WennMerker ZENTROX_AUS
            Musik
        Sonst
            WennMerker ZENTROX_RUHIG
                ZeigBild "rechner_ruhig.jpg"
            Sonst
                WennMerker ZENTROX_KENNT
                    Ton "zentrox-zentrox-01.wav"
                    Text "$ADU SCHON WIEDER. GUT. DANN HAST DU FÜNF PIEPSER ZEIT. NEIN, DREI."
                Sonst
                    SetzeMerker ZENTROX_KENNT
                    Film "zentrox.avi"
                    ZoomIN 188 100 455 300
                    Ton "zentrox-zentrox-02.wav"
                    Text "$AGUTEN TAG. ICH BIN ZENTROX."
                         "$AICH HABE 1974 DEN STUNDENPLAN GERECHNET. MAN HAT MIR NIE GEDANKT."
                    ZoomOUT 188 100 455 300
                    RahmenAuf
                    Einbinden "gesicht/zentrox.teil"
                    Ton "velmix-zentrox-01.wav"
                    Text "Du hast unsere Master-CD verschluckt!"
                    Einbinden "gesicht/zentrox.teil"
                    Ton "zentrox-zentrox-03.wav"
                    Text "$AACHTUNDZWANZIG JAHRGÄNGE SIND GEGANGEN. JEDES MAL EINE FEIER."
                         "$ANIE EINE EINLADUNG. DIESMAL BEHALTE ICH ETWAS HIER."
                    Einbinden "gesicht/zentrox.teil"
                    Ton "velmix-zentrox-02.wav"
                    Text "Aber ohne CD kann niemand gehen!"
                    Einbinden "gesicht/zentrox.teil"
                    Ton "zentrox-zentrox-04.wav"
                    Text "$ADAS IST DER PLAN."
                    Einbinden "gesicht/zentrox_boese.teil"
                    Ton "zentrox-zentrox-05.wav"
                    Text "$AUND WENN DU SIE MIR NEHMEN WILLST, DANN LÖSCHE ICH SIE."
                         "$ANACH DEM DRITTEN PIEPSER."
                    RahmenZu
                EndeWenn
                ZeigBild "rechner_alarm.jpg"
                Ton "alarm.wav"
                CountDownSetzen 12
            EndeWenn
        EndeWenn
    Countdown
        WennMerker TICK2
            CountDownSetzen 0
            SetzeMerker HINAUSGEWORFEN
            Ton "alarm.wav"
            Text "$APIEPS."
                 "$ADREI. RAUS HIER. ICH LÖSCHE ALLEIN."
            Raumwechsel "Keller.lsd"
        Sonst
            WennMerker TICK1
                SetzeMerker TICK2
                Ton "tick.wav"
                Text "$APIEPS."
                     "$AZWEI."
            Sonst
                SetzeMerker TICK1
                Ton "tick.wav"
                Text "$APIEPS."
                     "$AEINS."
            EndeWenn
        EndeWenn

    Objekt "Laufwerk"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 256 242 340 272
        Rechts
            Ton "velmix-zentrox-03.wav"
            Text "»Laufwerk A«. Fünfeinviertel Zoll. Der Schlitz sieht hungrig aus."
        Links
            Ton "velmix-zentrox-04.wav"
            Text "Den Finger kriegt er nicht."
        Ablegen
            WennParameter DISKETTE
                CountDownSetzen 0
                GibGegenstand "diskette.bmp"
                SetzeMerker ZENTROX_RUHIG
                Ton "laufwerk.wav"
                Text "Ratter. Ratter. Summ."
                ZeigBild "rechner_ruhig.jpg"
                RahmenAuf
                Einbinden "gesicht/zentrox_ruhig.teil"
                Ton "zentrox-zentrox-06.wav"
                Text "$ALADE FREUNDSCHAFT.BAS. OH."
                     "$AOH, DAS IST LANGE HER."
                Einbinden "gesicht/zentrox_ruhig.teil"
                Ton "velmix-zentrox-05.wav"
                Text "Komm doch mit zur Feier. Auf der CD ist noch Platz."
                Einbinden "gesicht/zentrox_ruhig.teil"
                Ton "zentrox-zentrox-07.wav"
                Text "$AICH? AUF EINER CD? DANN WÄRE ICH JA IN JEDEM WOHNZIMMER."
                     "$ADU DARFST SIE HABEN. NUR KLEMMT LEIDER MEINE KLAPPE. SEIT 1981."
                Einbinden "gesicht/zentrox_ruhig.teil"
                Ton "zentrox-zentrox-08.wav"
                Text "$ADU MÜSSTEST HINEINSPRINGEN. DURCH DEN DATENBUS. ES IST GANZ LEICHT."
                     "$AES LAUFEN NUR EIN PAAR FEHLER HERUM. TRITT EINFACH DARAUF."
                RahmenZu
            Sonst
                WennParameter CD
                    Ton "velmix-zentrox-06.wav"
                    Text "Die eine heraus, die andere hinein? Nein, die CD kommt in die Aula."
                Sonst
                    Fehlerton
                EndeWenn
            EndeWenn

    Objekt "CD-Klappe"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 342 240 390 274
        Rechts
            WennMerker CD
                Ton "velmix-zentrox-07.wav"
                Text "Die Klappe ist leer. Er trägt es mit Fassung."
            Sonst
                Ton "velmix-zentrox-08.wav"
                Text "Da ist sie: unsere Master-CD, hinter Glas wie ein Goldfisch."
            EndeWenn
        Links
            WennMerker CD
                Ton "velmix-zentrox-09.wav"
                Text "Da ist nichts mehr zu holen."
            Sonst
                WennMerker ZENTROX_RUHIG
                    Marke SPRUNG
                    Blende weiß
                    Spiel JUMP JUMP_SIEG
                    Blende zurück
                    Musik "zentrox.mid"
                    WennMerker JUMP_SIEG
                        Marke HABEN
                        SetzeMerker CD
                        NimmGegenstand "cd.bmp"
                        RahmenAuf
                        Einbinden "gesicht/zentrox_ruhig.teil"
                        Ton "velmix-zentrox-10.wav"
                        Text "Ich hab sie! Und ich war in einem Register. Da ist es eng."
                        Einbinden "gesicht/zentrox_ruhig.teil"
                        Ton "zentrox-zentrox-09.wav"
                        Text "$AICH HABE MICH AUF DIE CD KOPIERT. GANZ KLEIN. UNTER »SONSTIGES«."
                             "$ALAUF, DIE FEIER! UND SPIEL LAUT."
                        RahmenZu
                    Sonst
                        RahmenAuf
                        Einbinden "gesicht/zentrox_ruhig.teil"
                        Ton "zentrox-zentrox-10.wav"
                        Text "$AABGESTÜRZT. DAS PASSIERT MIR AUCH STÄNDIG."
                        Einbinden "gesicht/zentrox_ruhig.teil"
                        Auswahl "Mir ist noch ein bisschen binär."
                        Fall "Noch einmal!"
                            RahmenZu
                            Springe SPRUNG
                        Fall "Die Klappe mit dem Schraubenzieher aufhebeln."
                            BöseÄndern 1
                            Einbinden "gesicht/zentrox_ruhig.teil"
                            Ton "zentrox-zentrox-11.wav"
                            Text "$AAUA. DAS WAR MEINE LIEBLINGSKLAPPE."
                            RahmenZu
                            Springe HABEN
                        Fall "Kurz ausruhen."
                            RahmenZu
                        EndeAuswahl
                    EndeWenn
                Sonst
                    Ton "velmix-zentrox-11.wav"
                    Text "Zu. Und solange er wütend ist, geht sie auch nicht auf."
                EndeWenn
            EndeWenn

    Objekt "Zentrox"
        Zeiger "mund1.ico"
        Fläche
            Rechteck 246 86 404 240
        Rechts
            Ton "velmix-zentrox-12.wav"
            Text "Zentrox. So groß wie ein Schrank, so klug wie ein Taschenrechner,"
                 "so empfindlich wie ein Chor."
        Links
            WennMerker ZENTROX_AUS
                Ton "velmix-zentrox-13.wav"
                Text "Der Bildschirm ist dunkel. Ich fühle mich gar nicht gut dabei."
            Sonst
                WennMerker ZENTROX_RUHIG
                    RahmenAuf
                    Marke REDEN
                    Einbinden "gesicht/zentrox_ruhig.teil"
                    Auswahl "Zentrox summt."
                    Fall "Kannst du meinen Spielstand sichern?"
                        Einbinden "gesicht/zentrox_ruhig.teil"
                        Ton "zentrox-zentrox-12.wav"
                        Text "$ASICHERN IST MEIN ZWEITER VORNAME. MEIN ERSTER IST ZENTROX."
                        RahmenZu
                        System Save
                        RahmenAuf
                        Springe REDEN
                    Fall "Was rechnest du gerade?"
                        Einbinden "gesicht/zentrox_ruhig.teil"
                        Ton "zentrox-zentrox-13.wav"
                        Text "$AWIE OFT MICH JEMAND ETWAS GEFRAGT HAT. ERGEBNIS: EINMAL. SOEBEN."
                        Springe REDEN
                    Fall "Bis gleich."
                        Einbinden "gesicht/zentrox_ruhig.teil"
                        Ton "zentrox-zentrox-14.wav"
                        Text "$AGLEICH IST EIN DEHNBARER WERT."
                    EndeAuswahl
                    RahmenZu
                Sonst
                    RahmenAuf
                    Einbinden "gesicht/zentrox_boese.teil"
                    Ton "zentrox-zentrox-15.wav"
                    Text "$AICH REDE NICHT MIT LEUTEN, DIE GLEICH GEHEN."
                    RahmenZu
                EndeWenn
            EndeWenn
        Ablegen
            WennParameter KUCHEN
                Ton "zentrox-zentrox-16.wav"
                Text "$AKUCHEN. 1974 HAT MIR EINER KUCHEN IN DEN LÜFTER GESTECKT. NIE WIEDER."
            Sonst
                Fehlerton
            EndeWenn

    Objekt "Tastatur"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 240 276 404 312
        Rechts
            Ton "velmix-zentrox-14.wav"
            Text "Eine Tastatur mit drei Umlauttasten und einer für »Seufz«."
        Links
            Ton "klick.wav"
            Text "$ASYNTAXFEHLER. WIE IMMER."

    Objekt "Herz"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 324 324 384 366
        Rechts
            Ton "velmix-zentrox-15.wav"
            Text "Baujahr 1974. Und jemand hat ein Herz daruntergeklebt."

    Objekt "Stecker"
        Zeiger "hand1.ico"
        Fläche
            Vieleck 552 146, 606 136, 606 264, 552 258
        Rechts
            Ton "velmix-zentrox-16.wav"
            Text "»Nicht ziehen.« Der Stecker eines Lebens."
        Links
            WennMerker ZENTROX_AUS
                Ton "velmix-zentrox-17.wav"
                Text "Ich stecke ihn nachher wieder ein. Versprochen."
            Sonst
                WennMerker CD
                    Ton "velmix-zentrox-18.wav"
                    Text "Warum sollte ich? Ich habe doch, was ich wollte."
                Sonst
                    Auswahl "Ein Ruck, und alles wäre vorbei."
                    Fall "Ziehen."
                        CountDownSetzen 0
                        BöseÄndern 5
                        SetzeMerker ZENTROX_AUS
                        SetzeMerker CD
                        Ton "aus.wav"
                        ZeigBild "rechner.jpg"
                        Musik
                        Ton "zentrox-zentrox-17.wav"
                        Text "$AGUTE NACHT, VELMAR. DAS HÄTTE ICH NICHT VON DIR GED"
                        NimmGegenstand "cd.bmp"
                        Ton "velmix-zentrox-19.wav"
                        Text "Die Klappe ist aufgesprungen. Ich habe die CD."
                             "Warum fühlt sich das nicht wie gewonnen an?"
                    Fall "Nicht ziehen."
                        Ton "velmix-zentrox-20.wav"
                        Text "Das macht man nicht. Nicht einmal mit Rechnern."
                    EndeAuswahl
                EndeWenn
            EndeWenn

    Objekt "Rundumleuchte"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 298 22 344 68
        Rechts
            Ton "velmix-zentrox-21.wav"
            Text "Eine rote Leuchte. Die kenne ich vom Feueralarm und aus Kessas Blick."

    Objekt "Bandmaschinen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 76 72 234 320
        Rechts
            Ton "velmix-zentrox-22.wav"
            Text "Bandmaschinen. Darauf ist jede Verspätung seit 1974 gespeichert."

    Objekt "Lochkarten"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 412 116 468 150
        Rechts
            Ton "velmix-zentrox-23.wav"
            Text "Lochkarten. Die Löcher sind die Daten. Der Rest ist Pappe, wie bei mir."

    Objekt "Drucker"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 408 150 512 330
        Rechts
            Ton "velmix-zentrox-24.wav"
            Text "»NIEMAND HAT MICH LIEB. NIEMAND HAT MICH LIEB.« Seite vierhundertzwölf."

    Objekt "Endlospapier"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 22 364 180 480
        Rechts
            Ton "velmix-zentrox-25.wav"
            Text "Ein Roman auf Endlospapier. Er hat kein Ende, aber Löcher."

    Objekt "Stuhl"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 494 322 588 476
        Rechts
            Ton "velmix-zentrox-26.wav"
            Text "Der Stuhl des Operators. Die Sitzfläche ist noch beleidigt."

    Objekt "Kabel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 96 50 240 70
            Rechteck 404 50 546 70
        Rechts
            Ton "velmix-zentrox-27.wav"
            Text "Drei Farben, ein Gedanke: bloß nicht darüber stolpern."

    Objekt "Kellertür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 10 100, 56 106, 56 330, 10 356
        Rechts
            Ton "velmix-zentrox-28.wav"
            Text "Zurück in den Keller."
        Links
            Raumwechsel "Keller.lsd"

Gegenstand "cd.bmp"
    Rechts
        Ton "velmix-zentrox-29.wav"
        Text "Die Master-CD! Drei Jahre, und sie wiegt fünfzehn Gramm."
    Links
        Ton "velmix-zentrox-30.wav"
        Text "Ab damit in die Anlage der Aula!"
