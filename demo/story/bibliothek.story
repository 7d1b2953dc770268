// The library: a globe that asks, a librarian who remembers.

Raum "Bibliothek.lsd"
    Bild "bibliothek.jpg"
    Start
        Musik "bibliothek.mid"
        WennMerker AUSWEIS_GEZEIGT
            ObjektAn "Diskettenkasten"
        EndeWenn
        WennMerker nicht BIBLIOTHEK_GESEHEN
            SetzeMerker BIBLIOTHEK_GESEHEN
            Tirsa: "Pssst."
            Velmix: "Ich habe doch noch gar nichts gesagt."
            Tirsa: "Du wolltest."
        EndeWenn

    Objekt "Diskettenkasten"
        Zeiger "hand1.ico"
        Inaktiv
        Fläche
            Rechteck 72 302 130 348
        Rechts
            Velmix: "Der Diskettenkasten. Jahrgang 1974, dem Staub nach ungeöffnet."
        Links
            WennMerker MEMORY_FERTIG
                Velmix: "Die wichtigste habe ich schon."
            Sonst
                Tirsa: "Erst das Spiel, dann die Diskette. So steht es in der Benutzungsordnung."
            EndeWenn

    Objekt "Tirsa"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 112 180, 146 162, 186 176, 184 220, 176 326, 118 326, 108 240
        Rechts
            Velmix: "Tirsa leitet die Bibliothek, seit sie lesen kann. Also seit sie vier ist."
        Links
            Gespräch
                WennMerker MEMORY_FERTIG
                    Tirsa: "Bring sie zurück. Irgendwann. Die Leihfrist beträgt achtundzwanzig Jahre."
                SonstWenn AUSWEIS_GEZEIGT
                    Marke SPIELEN
                    Tirsa: "Die Diskette bekommt, wer sich etwas merken kann. Memory. Acht Paare."
                    Auswahl "Tirsa mischt sechzehn Karten, ohne hinzusehen."
                            "Ein Klick dreht eine um, zwei sind ein Zug."
                        Fall "Fang an."
                            Marke MEMORY
                            Spiel MEMORY MEMORY_SIEG
                            Musik "bibliothek.mid"
                            WennMerker MEMORY_SIEG
                                Tirsa: "Nicht übel. Du vergisst wohl nur Hausaufgaben."
                                Marke DISKETTE
                                SetzeMerker MEMORY_FERTIG
                                NimmGegenstand DISKETTE
                                Tirsa: "»Freundschaft.bas«. Das Erste, was Zentrox je geladen hat."
                                       "Er hat danach eine Woche lang gesummt."
                            Sonst
                                Tirsa: "Ich habe gewonnen. Ich merke es mir."
                                Auswahl "Noch einmal?"
                                    Fall "Noch einmal!"
                                        Springe MEMORY
                                    Fall "Auf die Katze zeigen und in den Kasten greifen."
                                        BöseÄndern 1
                                        Tirsa: "Die Katze liest nicht, sie schläft. Velmix? Velmix!"
                                        Springe DISKETTE
                                    Option "Später."
                                EndeAuswahl
                            EndeWenn
                        Option "Ich muss mich erst sammeln."
                    EndeAuswahl
                Sonst
                    Velmix: "Tirsa, unsere Master-CD ist weg. Hast du etwas Ähnliches?"
                    Tirsa: "Nur die Freundschaftsdiskette von Zentrox, 1974. Nach ihr hat er immer gesummt."
                           "Flüster bitte. Und: Leseausweis, bitte."
                    Velmix: "Den hat der Globus verschluckt. Vorige Woche, beim Ausleihen."
                    Tirsa: "Dann sprich mit ihm. Er redet gern. Leider."
                EndeWenn
            EndeGespräch
        Ablegen
            Bei AUSWEIS
                GibGegenstand AUSWEIS
                SetzeMerker AUSWEIS_GEZEIGT
                ObjektAn "Diskettenkasten"
                Tirsa: "Velmar, genannt Velmix. Vier Bücher überfällig, drei davon über Pünktlichkeit."
                       "In Ordnung. Sprich mich an, wenn du spielen willst."
            Bei KUCHEN
                Tirsa: "Krümel. Bücher. Nein."

    Objekt "Globus"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 400 240, 440 240, 474 276, 474 312, 440 346, 466 402, 374 402, 404 346, 362 312, 362 272
        Rechts
            Velmix: "Der sprechende Globus, Projekt der Technik-AG."
                    "Sie haben ihm alles beigebracht außer Aufhören."
        Links
            Gespräch
                WennMerker HDW_FERTIG
                    Globus: "Beehren Sie mich bald wieder! Ich drehe mich nur um Sie!"
                Sonst
                    Globus: "Willkommen bei »Hauptstadt, du weißt«! Vier Richtige, und Ihr Ausweis ist frei!"
                    Auswahl "In seinem Schlitz steckt ein Stück Pappe mit meinem Gesicht."
                            "Die richtige Stadt klickt man an. So steht es auf dem Sockel."
                        Fall "Los, fragen Sie."
                            Marke QUIZ
                            Spiel HDW HDW_SIEG
                            Musik "bibliothek.mid"
                            WennMerker HDW_SIEG
                                Globus: "Vier von vier! Sie haben die Welt in der Tasche! Und den Ausweis auch."
                                Marke AUSWEIS
                                SetzeMerker HDW_FERTIG
                                NimmGegenstand AUSWEIS
                                Velmix: "Mein Leseausweis. Er ist nur ein bisschen äquatorgeknickt."
                            Sonst
                                Globus: "Oh! Das war leider das Nachbarland!"
                                Auswahl "Noch eine Runde?"
                                    Fall "Noch einmal!"
                                        Springe QUIZ
                                    Fall "Kräftig schütteln."
                                        BöseÄndern 1
                                        Ton "ruetteln.wav"
                                        Text "Klapper. Klapper. Plopp."
                                        Globus: "Erdbeben! Erdbeben der Stärke neun! Da, nehmen Sie ihn!"
                                        Springe AUSWEIS
                                    Option "Später."
                                EndeAuswahl
                            EndeWenn
                        Option "Nichts, danke."
                    EndeAuswahl
                EndeWenn
            EndeGespräch
        Ablegen
            Bei MÜNZE
                Globus: "Ich frage, Sie antworten! Trinkgeld erst danach!"

    Objekt "Katze"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 532 352 620 402
        Rechts
            Velmix: "Die Bibliothekskatze. Sie heißt Inventar."
        Links
            Velmix: "Schnurr. Das war jetzt die Katze. Glaube ich."

    Objekt "Sessel"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 484 360, 506 300, 560 284, 640 296, 640 440, 486 450
        Rechts
            Velmix: "Der Lesesessel. Wer sich hineinsetzt, bleibt bis zum Ende des Kapitels."

    Objekt "Stehlampe"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 474 190, 510 190, 524 236, 498 240, 498 300, 486 300, 486 240, 460 236
        Rechts
            Velmix: "Eine Lampe mit Rüschen. Sie leuchtet so, wie Tee schmeckt."

    Objekt "Ausgang"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 548 130, 606 108, 606 284, 548 284
        Rechts
            Velmix: "Zum Flur. Leise."
        Links
            Raumwechsel "Flur.lsd"

    Objekt "Zettel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 612 142 640 198
        Rechts
            Velmix: "»PSSST!« Das lauteste Schild der Schule."

    Objekt "Tischlampe"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 14 284 70 348
        Rechts
            Velmix: "Grünes Glas, goldener Fuß. Darunter wird alles zur Urkunde."

    Objekt "Kartei"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 196 292 256 346
        Rechts
            Velmix: "Die Kartei, von A bis Z. Das Ypsilon ist ausgeliehen."
        Links
            Velmix: "»Velmix, siehe auch: überfällig.«"

    Objekt "Stempel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 148 326 178 348
        Rechts
            Velmix: "Der Stempel. »Zurückgegeben«. Den hört man selten."

    Objekt "Theke"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 0 350 272 480
        Rechts
            Velmix: "Die Theke. Hier wird getauscht: Bücher gegen Versprechen."

    Objekt "Leiter"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 198 58 242 290
        Rechts
            Velmix: "Die Leiter fährt auf einer Schiene. Tirsa fährt manchmal mit."
        Links
            Velmix: "Oben stehen nur die Bücher, die niemand erreichen soll."

    Objekt "Regale"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 120 30 198 160
            Rechteck 392 30 520 238
            Vieleck 0 0, 110 30, 110 260, 0 280
        Rechts
            Velmix: "Elftausend Bücher. In einem davon liegt noch mein Pausengeld von 1999."

    Objekt "Fenster"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 254 60 388 224
        Rechts
            Velmix: "Abendsonne. So sieht Wissen aus, wenn es warm ist."

    Objekt "Fensterbank"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 250 226 362 300
        Rechts
            Velmix: "Ein Fensterplatz. Hier hat die halbe Schule geschmollt."

    Objekt "Teppich"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 276 348, 360 348, 372 404, 486 404, 486 448, 276 448
        Rechts
            Velmix: "Der Teppich schluckt jeden Schritt. Und jede zweite Kontaktlinse."

Gegenstand "ausweis.bmp"
    Rechts
        Velmix: "Mein Leseausweis. Auf dem Foto bin ich zwölf und sehr zuversichtlich."

Gegenstand "diskette.bmp"
    Rechts
        Velmix: "»Freundschaft.bas«, 1974. Fünfeinviertel Zoll Gefühl."
