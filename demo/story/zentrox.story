// The computer room: the count-down, the disc, the jump.

Raum "Zentrox.lsd"
    Bild "rechner.jpg"
    Start
        Musik "zentrox.mid"
        LöscheMerker TICK1
        LöscheMerker TICK2
        WennMerker ZENTROX_AUS
            Musik
        SonstWenn ZENTROX_RUHIG
            ZeigBild "rechner_ruhig.jpg"
        Sonst
            WennMerker ZENTROX_KENNT
                Zentrox: "DU SCHON WIEDER. GUT. DANN HAST DU FÜNF PIEPSER ZEIT. NEIN, DREI."
            Sonst
                SetzeMerker ZENTROX_KENNT
                Film "zentrox.avi"
                ZoomIN 188 100 455 300
                Zentrox: "GUTEN TAG. ICH BIN ZENTROX."
                         "ICH HABE 1974 DEN STUNDENPLAN GERECHNET. MAN HAT MIR NIE GEDANKT."
                ZoomOUT 188 100 455 300
                Gespräch
                    Velmix: "Du hast unsere Master-CD verschluckt!"
                    Zentrox: "ACHTUNDZWANZIG JAHRGÄNGE SIND GEGANGEN. JEDES MAL EINE FEIER."
                             "NIE EINE EINLADUNG. DIESMAL BEHALTE ICH ETWAS HIER."
                    Velmix: "Aber ohne CD kann niemand gehen!"
                    Zentrox: "DAS IST DER PLAN."
                    ZentroxBöse: "UND WENN DU SIE MIR NEHMEN WILLST, DANN LÖSCHE ICH SIE."
                                 "NACH DEM DRITTEN PIEPSER."
                EndeGespräch
            EndeWenn
            ZeigBild "rechner_alarm.jpg"
            Ton "alarm.wav"
            CountDownSetzen 12
        EndeWenn
    Countdown
        WennMerker TICK2
            CountDownSetzen 0
            SetzeMerker HINAUSGEWORFEN
            Ton "alarm.wav"
            Text "$APIEPS."
                 "$ADREI. RAUS HIER. ICH LÖSCHE ALLEIN."
            Raumwechsel "Keller.lsd"
        SonstWenn TICK1
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

    Objekt "Laufwerk"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 256 242 340 272
        Rechts
            Velmix: "»Laufwerk A«. Fünfeinviertel Zoll. Der Schlitz sieht hungrig aus."
        Links
            Velmix: "Den Finger kriegt er nicht."
        Ablegen
            Bei DISKETTE
                CountDownSetzen 0
                GibGegenstand DISKETTE
                SetzeMerker ZENTROX_RUHIG
                Ton "laufwerk.wav"
                Text "Ratter. Ratter. Summ."
                ZeigBild "rechner_ruhig.jpg"
                Gespräch
                    ZentroxRuhig: "LADE FREUNDSCHAFT.BAS. OH."
                                  "OH, DAS IST LANGE HER."
                    Velmix: "Komm doch mit zur Feier. Auf der CD ist noch Platz."
                    ZentroxRuhig: "ICH? AUF EINER CD? DANN WÄRE ICH JA IN JEDEM WOHNZIMMER."
                                  "DU DARFST SIE HABEN. NUR KLEMMT LEIDER MEINE KLAPPE. SEIT 1978."
                    ZentroxRuhig: "DU MÜSSTEST HINEINSPRINGEN. DURCH DEN DATENBUS. ES IST GANZ LEICHT."
                                  "ES LAUFEN NUR EIN PAAR FEHLER HERUM. TRITT EINFACH DARAUF."
                                  "PFEILTASTEN ZUM LAUFEN, LEERTASTE ZUM SPRINGEN. ICH HABE DAS ERFUNDEN."
                EndeGespräch
            Bei CD
                Velmix: "Die eine heraus, die andere hinein? Nein, die CD kommt in die Aula."

    Objekt "CD-Klappe"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 342 240 390 274
        Rechts
            WennMerker CD
                Velmix: "Die Klappe ist leer. Er trägt es mit Fassung."
            Sonst
                Velmix: "Da ist sie: unsere Master-CD, hinter Glas wie ein Goldfisch."
            EndeWenn
        Links
            WennMerker CD
                Velmix: "Da ist nichts mehr zu holen."
            SonstWenn ZENTROX_RUHIG
                Marke SPRUNG
                Blende weiß
                Spiel JUMP JUMP_SIEG
                Blende zurück
                Musik "zentrox.mid"
                WennMerker JUMP_SIEG
                    Marke HABEN
                    SetzeMerker CD
                    NimmGegenstand CD
                    Gespräch
                        Velmix: "Ich hab sie! Und ich war in einem Register. Da ist es eng."
                        ZentroxRuhig: "ICH HABE MICH AUF DIE CD KOPIERT. GANZ KLEIN. UNTER »SONSTIGES«."
                                      "LAUF, DIE FEIER! UND SPIEL LAUT."
                    EndeGespräch
                Sonst
                    Gespräch
                        ZentroxRuhig: "ABGESTÜRZT. DAS PASSIERT MIR AUCH STÄNDIG."
                        Frage "Mir ist noch ein bisschen binär."
                            Schluss "Noch einmal!"
                                RahmenZu
                                Springe SPRUNG
                            Schluss "Die Klappe mit dem Schraubenzieher aufhebeln."
                                BöseÄndern 1
                                ZentroxRuhig: "AUA. DAS WAR MEINE LIEBLINGSKLAPPE."
                                RahmenZu
                                Springe HABEN
                            Schluss "Kurz ausruhen."
                    EndeGespräch
                EndeWenn
            Sonst
                Velmix: "Zu. Und solange er wütend ist, geht sie auch nicht auf."
            EndeWenn

    Objekt "Zentrox"
        Zeiger "mund1.ico"
        Fläche
            Rechteck 246 86 404 240
        Rechts
            Velmix: "Zentrox. So groß wie ein Schrank, so klug wie ein Taschenrechner,"
                    "so empfindlich wie ein Chor."
        Links
            WennMerker ZENTROX_AUS
                Velmix: "Der Bildschirm ist dunkel. Ich fühle mich gar nicht gut dabei."
            SonstWenn ZENTROX_RUHIG
                Gespräch
                    Frage "Zentrox summt."
                        Antwort "Kannst du meinen Spielstand sichern?"
                            ZentroxRuhig: "SICHERN IST MEIN ZWEITER VORNAME. MEIN ERSTER IST ZENTROX."
                            RahmenZu
                            System Save
                            RahmenAuf
                        Antwort "Was rechnest du gerade?"
                            ZentroxRuhig: "WIE OFT MICH JEMAND ETWAS GEFRAGT HAT. ERGEBNIS: EINMAL. SOEBEN."
                        Schluss "Bis gleich."
                            ZentroxRuhig: "GLEICH IST EIN DEHNBARER WERT."
                EndeGespräch
            Sonst
                Gespräch
                    ZentroxBöse: "ICH REDE NICHT MIT LEUTEN, DIE GLEICH GEHEN."
                EndeGespräch
            EndeWenn
        Ablegen
            Bei KUCHEN
                Zentrox: "KUCHEN. 1974 HAT MIR EINER KUCHEN IN DEN LÜFTER GESTECKT. NIE WIEDER."

    Objekt "Tastatur"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 240 276 404 312
        Rechts
            Velmix: "Eine Tastatur mit drei Umlauttasten und einer für »Seufz«."
        Links
            Ton "klick.wav"
            Text "$ASYNTAXFEHLER. WIE IMMER."

    Objekt "Herz"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 324 324 384 366
        Rechts
            Velmix: "Baujahr 1974. Und jemand hat ein Herz daruntergeklebt."

    Objekt "Stecker"
        Zeiger "hand1.ico"
        Fläche
            Vieleck 552 146, 606 136, 606 264, 552 258
        Rechts
            Velmix: "»Nicht ziehen.« Der Stecker eines Lebens."
        Links
            WennMerker ZENTROX_AUS
                Velmix: "Ich stecke ihn nachher wieder ein. Versprochen."
            SonstWenn CD
                Velmix: "Warum sollte ich? Ich habe doch, was ich wollte."
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
                        Zentrox: "GUTE NACHT, VELMAR. DAS HÄTTE ICH NICHT VON DIR GED"
                        NimmGegenstand CD
                        Velmix: "Die Klappe ist aufgesprungen. Ich habe die CD."
                                "Warum fühlt sich das nicht wie gewonnen an?"
                    Fall "Nicht ziehen."
                        Velmix: "Das macht man nicht. Nicht einmal mit Rechnern."
                EndeAuswahl
            EndeWenn

    Objekt "Rundumleuchte"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 298 22 344 68
        Rechts
            Velmix: "Eine rote Leuchte. Die kenne ich vom Feueralarm und aus Kessas Blick."

    Objekt "Bandmaschinen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 76 72 234 320
        Rechts
            Velmix: "Bandmaschinen. Darauf ist jede Verspätung seit 1974 gespeichert."

    Objekt "Lochkarten"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 412 116 468 150
        Rechts
            Velmix: "Lochkarten. Die Löcher sind die Daten. Der Rest ist Pappe, wie bei mir."

    Objekt "Drucker"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 408 150 512 330
        Rechts
            Velmix: "»NIEMAND HAT MICH LIEB. NIEMAND HAT MICH LIEB.« Seite vierhundertzwölf."

    Objekt "Endlospapier"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 22 364 180 480
        Rechts
            Velmix: "Ein Roman auf Endlospapier. Er hat kein Ende, aber Löcher."

    Objekt "Stuhl"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 494 322 588 476
        Rechts
            Velmix: "Der Stuhl des Operators. Die Sitzfläche ist noch beleidigt."

    Objekt "Kabel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 96 50 240 70
            Rechteck 404 50 546 70
        Rechts
            Velmix: "Drei Farben, ein Gedanke: bloß nicht darüber stolpern."

    Objekt "Kellertür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 10 100, 56 106, 56 330, 10 356
        Rechts
            Velmix: "Zurück in den Keller."
        Links
            Raumwechsel "Keller.lsd"

Gegenstand "cd.bmp"
    Rechts
        Velmix: "Die Master-CD! Drei Jahre, und sie wiegt fünfzehn Gramm."
    Links
        Velmix: "Ab damit in die Anlage der Aula!"
