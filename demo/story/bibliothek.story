// The library: a globe that asks, a librarian who remembers.

Raum "Bibliothek.lsd"
    Bild "bibliothek.jpg"
    Start
        Musik "bibliothek.mid"
        WennMerker AUSWEIS_GEZEIGT
            ObjektAn "Diskettenkasten"
        EndeWenn
        WennMerker BIBLIOTHEK_GESEHEN
        Sonst
            SetzeMerker BIBLIOTHEK_GESEHEN
            Ton "tirsa-bibliothek-01.wav"
            Text "$EPssst."
            Ton "velmix-bibliothek-01.wav"
            Text "Ich habe doch noch gar nichts gesagt."
            Ton "tirsa-bibliothek-02.wav"
            Text "$EDu wolltest."
        EndeWenn

    Objekt "Diskettenkasten"
        Zeiger "hand1.ico"
        Inaktiv
        Fläche
            Rechteck 72 302 130 348
        Rechts
            Ton "velmix-bibliothek-02.wav"
            Text "Der Diskettenkasten. Jahrgang 1974, dem Staub nach ungeöffnet."
        Links
            WennMerker MEMORY_FERTIG
                Ton "velmix-bibliothek-03.wav"
                Text "Die wichtigste habe ich schon."
            Sonst
                Ton "tirsa-bibliothek-03.wav"
                Text "$EErst das Spiel, dann die Diskette. So steht es in der Benutzungsordnung."
            EndeWenn

    Objekt "Tirsa"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 112 180, 146 162, 186 176, 184 220, 176 326, 118 326, 108 240
        Rechts
            Ton "velmix-bibliothek-04.wav"
            Text "Tirsa leitet die Bibliothek, seit sie lesen kann. Also seit sie vier ist."
        Links
            RahmenAuf
            WennMerker MEMORY_FERTIG
                Einbinden "gesicht/tirsa.teil"
                Ton "tirsa-bibliothek-04.wav"
                Text "$EBring sie zurück. Irgendwann. Die Leihfrist beträgt achtundzwanzig Jahre."
            Sonst
                WennMerker AUSWEIS_GEZEIGT
                    Marke SPIELEN
                    Einbinden "gesicht/tirsa.teil"
                    Ton "tirsa-bibliothek-05.wav"
                    Text "$EDie Diskette bekommt, wer sich etwas merken kann. Memory. Acht Paare."
                    Einbinden "gesicht/tirsa.teil"
                    Auswahl "Tirsa mischt sechzehn Karten, ohne hinzusehen."
                    Fall "Fang an."
                        Marke MEMORY
                        Spiel MEMORY MEMORY_SIEG
                        Musik "bibliothek.mid"
                        WennMerker MEMORY_SIEG
                            Einbinden "gesicht/tirsa.teil"
                            Ton "tirsa-bibliothek-06.wav"
                            Text "$ENicht übel. Du vergisst wohl nur Hausaufgaben."
                            Marke DISKETTE
                            SetzeMerker MEMORY_FERTIG
                            NimmGegenstand "diskette.bmp"
                            Einbinden "gesicht/tirsa.teil"
                            Ton "tirsa-bibliothek-07.wav"
                            Text "$E»Freundschaft.bas«. Das Erste, was Zentrox je geladen hat."
                                 "$EEr hat danach eine Woche lang gesummt."
                        Sonst
                            Einbinden "gesicht/tirsa.teil"
                            Ton "tirsa-bibliothek-08.wav"
                            Text "$EIch habe gewonnen. Ich merke es mir."
                            Einbinden "gesicht/tirsa.teil"
                            Auswahl "Noch einmal?"
                            Fall "Noch einmal!"
                                Springe MEMORY
                            Fall "Auf die Katze zeigen und in den Kasten greifen."
                                BöseÄndern 1
                                Einbinden "gesicht/tirsa.teil"
                                Ton "tirsa-bibliothek-09.wav"
                                Text "$EDie Katze liest nicht, sie schläft. Velmix? Velmix!"
                                Springe DISKETTE
                            Option "Später."
                            EndeAuswahl
                        EndeWenn
                    Option "Ich muss mich erst sammeln."
                    EndeAuswahl
                Sonst
                    Einbinden "gesicht/tirsa.teil"
                    Ton "velmix-bibliothek-05.wav"
                    Text "Tirsa, ich brauche die Freundschaftsdiskette von 1974."
                    Einbinden "gesicht/tirsa.teil"
                    Ton "tirsa-bibliothek-10.wav"
                    Text "$EFlüster bitte. Und: Leseausweis, bitte."
                    Einbinden "gesicht/tirsa.teil"
                    Ton "velmix-bibliothek-06.wav"
                    Text "Den hat der Globus verschluckt. Vorige Woche, beim Ausleihen."
                    Einbinden "gesicht/tirsa.teil"
                    Ton "tirsa-bibliothek-11.wav"
                    Text "$EDann sprich mit ihm. Er redet gern. Leider."
                EndeWenn
            EndeWenn
            RahmenZu
        Ablegen
            WennParameter AUSWEIS
                GibGegenstand "ausweis.bmp"
                SetzeMerker AUSWEIS_GEZEIGT
                ObjektAn "Diskettenkasten"
                Ton "tirsa-bibliothek-12.wav"
                Text "$EVelmar, genannt Velmix. Vier Bücher überfällig, drei davon über Pünktlichkeit."
                     "$EIn Ordnung. Sprich mich an, wenn du spielen willst."
            Sonst
                WennParameter KUCHEN
                    Ton "tirsa-bibliothek-13.wav"
                    Text "$EKrümel. Bücher. Nein."
                Sonst
                    Fehlerton
                EndeWenn
            EndeWenn

    Objekt "Globus"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 400 240, 440 240, 474 276, 474 312, 440 346, 466 402, 374 402, 404 346, 362 312, 362 272
        Rechts
            Ton "velmix-bibliothek-07.wav"
            Text "Der sprechende Globus, Projekt der Technik-AG."
                 "Sie haben ihm alles beigebracht außer Aufhören."
        Links
            RahmenAuf
            WennMerker HDW_FERTIG
                Einbinden "gesicht/globus.teil"
                Ton "globus-bibliothek-01.wav"
                Text "$BBeehren Sie mich bald wieder! Ich drehe mich nur um Sie!"
            Sonst
                Einbinden "gesicht/globus.teil"
                Ton "globus-bibliothek-02.wav"
                Text "$BWillkommen bei »Hauptstadt, du weißt«! Vier Richtige, und Ihr Ausweis ist frei!"
                Einbinden "gesicht/globus.teil"
                Auswahl "In seinem Schlitz steckt ein Stück Pappe mit meinem Gesicht."
                Fall "Los, fragen Sie."
                    Marke QUIZ
                    Spiel HDW HDW_SIEG
                    Musik "bibliothek.mid"
                    WennMerker HDW_SIEG
                        Einbinden "gesicht/globus.teil"
                        Ton "globus-bibliothek-03.wav"
                        Text "$BVier von vier! Sie haben die Welt in der Tasche! Und den Ausweis auch."
                        Marke AUSWEIS
                        SetzeMerker HDW_FERTIG
                        NimmGegenstand "ausweis.bmp"
                        Einbinden "gesicht/globus.teil"
                        Ton "velmix-bibliothek-08.wav"
                        Text "Mein Leseausweis. Er ist nur ein bisschen äquatorgeknickt."
                    Sonst
                        Einbinden "gesicht/globus.teil"
                        Ton "globus-bibliothek-04.wav"
                        Text "$BOh! Das war leider das Nachbarland!"
                        Einbinden "gesicht/globus.teil"
                        Auswahl "Noch eine Runde?"
                        Fall "Noch einmal!"
                            Springe QUIZ
                        Fall "Kräftig schütteln."
                            BöseÄndern 1
                            Ton "ruetteln.wav"
                            Text "Klapper. Klapper. Plopp."
                            Einbinden "gesicht/globus.teil"
                            Ton "globus-bibliothek-05.wav"
                            Text "$BErdbeben! Erdbeben der Stärke neun! Da, nehmen Sie ihn!"
                            Springe AUSWEIS
                        Option "Später."
                        EndeAuswahl
                    EndeWenn
                Option "Nichts, danke."
                EndeAuswahl
            EndeWenn
            RahmenZu

    Objekt "Katze"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 532 352 620 402
        Rechts
            Ton "velmix-bibliothek-09.wav"
            Text "Die Bibliothekskatze. Sie heißt Inventar."
        Links
            Ton "velmix-bibliothek-10.wav"
            Text "Schnurr. Das war jetzt die Katze. Glaube ich."

    Objekt "Sessel"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 484 360, 506 300, 560 284, 640 296, 640 440, 486 450
        Rechts
            Ton "velmix-bibliothek-11.wav"
            Text "Der Lesesessel. Wer sich hineinsetzt, bleibt bis zum Ende des Kapitels."

    Objekt "Stehlampe"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 474 190, 510 190, 524 236, 498 240, 498 300, 486 300, 486 240, 460 236
        Rechts
            Ton "velmix-bibliothek-12.wav"
            Text "Eine Lampe mit Rüschen. Sie leuchtet so, wie Tee schmeckt."

    Objekt "Ausgang"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 548 130, 606 108, 606 284, 548 284
        Rechts
            Ton "velmix-bibliothek-13.wav"
            Text "Zum Flur. Leise."
        Links
            Raumwechsel "Flur.lsd"

    Objekt "Zettel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 612 142 640 198
        Rechts
            Ton "velmix-bibliothek-14.wav"
            Text "»PSSST!« Das lauteste Schild der Schule."

    Objekt "Tischlampe"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 14 284 70 348
        Rechts
            Ton "velmix-bibliothek-15.wav"
            Text "Grünes Glas, goldener Fuß. Darunter wird alles zur Urkunde."

    Objekt "Kartei"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 196 292 256 346
        Rechts
            Ton "velmix-bibliothek-16.wav"
            Text "Die Kartei, von A bis Z. Das Ypsilon ist ausgeliehen."
        Links
            Ton "velmix-bibliothek-17.wav"
            Text "»Velmix, siehe auch: überfällig.«"

    Objekt "Stempel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 148 326 178 348
        Rechts
            Ton "velmix-bibliothek-18.wav"
            Text "Der Stempel. »Zurückgegeben«. Den hört man selten."

    Objekt "Theke"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 0 350 272 480
        Rechts
            Ton "velmix-bibliothek-19.wav"
            Text "Die Theke. Hier wird getauscht: Bücher gegen Versprechen."

    Objekt "Leiter"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 198 58 242 290
        Rechts
            Ton "velmix-bibliothek-20.wav"
            Text "Die Leiter fährt auf einer Schiene. Tirsa fährt manchmal mit."
        Links
            Ton "velmix-bibliothek-21.wav"
            Text "Oben stehen nur die Bücher, die niemand erreichen soll."

    Objekt "Regale"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 120 30 198 160
            Rechteck 392 30 520 238
            Vieleck 0 0, 110 30, 110 260, 0 280
        Rechts
            Ton "velmix-bibliothek-22.wav"
            Text "Elftausend Bücher. In einem davon liegt noch mein Pausengeld von 1999."

    Objekt "Fenster"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 254 60 388 224
        Rechts
            Ton "velmix-bibliothek-23.wav"
            Text "Abendsonne. So sieht Wissen aus, wenn es warm ist."

    Objekt "Fensterbank"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 250 226 362 300
        Rechts
            Ton "velmix-bibliothek-24.wav"
            Text "Ein Fensterplatz. Hier hat die halbe Schule geschmollt."

    Objekt "Teppich"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 276 348, 360 348, 372 404, 486 404, 486 448, 276 448
        Rechts
            Ton "velmix-bibliothek-25.wav"
            Text "Der Teppich schluckt jeden Schritt. Und jede zweite Kontaktlinse."

Gegenstand "ausweis.bmp"
    Rechts
        Ton "velmix-bibliothek-26.wav"
        Text "Mein Leseausweis. Auf dem Foto bin ich zwölf und sehr zuversichtlich."

Gegenstand "diskette.bmp"
    Rechts
        Ton "velmix-bibliothek-27.wav"
        Text "»Freundschaft.bas«, 1974. Fünfeinviertel Zoll Gefühl."
