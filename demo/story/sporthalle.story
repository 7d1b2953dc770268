// The sports hall: a match for a rope, a fight for a fuse.

Raum "Sporthalle.lsd"
    Bild "sporthalle.jpg"
    Start
        Musik "sport.mid"
        WennMerker nicht SPORT_GESEHEN
            SetzeMerker SPORT_GESEHEN
            Kessa: "Na endlich! Ein Gegner! Oder bist du wegen der Hallenschuhe hier?"
        EndeWenn

    Objekt "Schläger"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 320 270 400 290
        Rechts
            Velmix: "Mein Schläger. Der Belag ist aus der Zeit, als Gummi noch wild wuchs."

    Objekt "Kessa"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 184 190, 204 172, 252 176, 250 260, 186 260
        Rechts
            Velmix: "Kessa, Tischtenniskönigin. Sie hat drei Jahre lang nur einmal verloren:"
                    "eine Mütze."
        Links
            Gespräch
                WennMerker PONG_FERTIG
                    Kessa: "Das war kein Sieg, das war ein Aussetzer. Von mir."
                           "Revanche auf dem Klassentreffen!"
                Sonst
                    Velmix: "Kessa, leihst du mir dein Springseil?"
                    Kessa: "Leihen? Erspielen! Bis elf. Wer gewinnt, kriegt das Seil."
                           "Wer verliert, trägt mir die Tasche. Und ich habe viele Taschen."
                    Auswahl "Kessa lässt den Ball auf dem Schlägerrand tanzen."
                            "Pfeil hoch, Pfeil runter: Mehr muss mein Schläger nicht können."
                        Fall "Angenommen!"
                            Marke SPIEL
                            Spiel PONG PONG_SIEG
                            Musik "sport.mid"
                            WennMerker PONG_SIEG
                                Kessa: "Das ist nicht passiert. Das bleibt unter uns."
                                       "Hier, das Seil. Hüpf damit, bis du Muskeln hast."
                                Marke SEIL
                                SetzeMerker PONG_FERTIG
                                NimmGegenstand SEIL
                                Velmix: "Ich will damit nur angeln."
                                Kessa: "Jeder trainiert anders."
                            Sonst
                                Kessa: "Und das war mit links. Nein, wirklich: Ich war die Linke."
                                Auswahl "Noch einmal?"
                                    Fall "Noch einmal!"
                                        Springe SPIEL
                                    Fall "Rufen: »Da, ein Talentsucher!« und das Seil nehmen."
                                        BöseÄndern 1
                                        Kessa: "Wo? Wo? Moment mal. Wo ist mein Seil?"
                                        Springe SEIL
                                    Option "Später."
                                EndeAuswahl
                            EndeWenn
                        Option "Ich wärme mich erst auf."
                    EndeAuswahl
                EndeWenn
            EndeGespräch
        Ablegen
            Bei MÜNZE
                Kessa: "Willst du mich bestechen? Ich nehme nur Pokale."

    Objekt "Brokan"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 466 172, 512 172, 530 230, 526 280, 514 356, 464 356, 456 270, 444 236
        Rechts
            Velmix: "Brokan. Er hat einmal einen Barren getragen."
                    "Weil ihn niemand gebeten hat, ihn zu rollen."
        Links
            Gespräch
                WennMerker PRÜGEL_FERTIG
                    Brokan: "Wir sind jetzt Freunde, ja? Ich hatte noch nie einen."
                            "Also, außer dem Sandsack."
                Sonst
                    Velmix: "Brokan, hinter dir hängt eine Sicherung. Die brauche ich für den Keller."
                    Brokan: "Geräteraum ist zu. Herr Grobbel hat gesagt: Niemand kommt durch."
                            "Also kommt niemand durch. Außer er kämpft mit mir. Hat er auch gesagt."
                    Frage "Brokans Magen knurrt. Oder das war Brokan."
                          "Er kämpft nach Plan: Sechs Angriffe und sechs Abwehren klickt man vorher an."
                        Schluss "Dann kämpfen wir."
                            Marke KAMPF
                            WennMerker TRANK
                                Spiel PRÜGEL PRÜGEL_SIEG zaubertrank
                            Sonst
                                Spiel PRÜGEL PRÜGEL_SIEG
                            EndeWenn
                            Springe URTEIL
                        Antwort "Erst ein Schluck Zaubertrank, dann kämpfen."
                            WennMerker GEBRAUT
                                WennMerker nicht TRANK
                                    GibGegenstand ZAUBERTRANK
                                    SetzeMerker TRANK
                                    Velmix: "Gluck. Schmeckt nach Minze und Mut. Hält hoffentlich bis zum Abend."
                                EndeWenn
                                Springe KAMPF
                            Sonst
                                Velmix: "Ich habe nur leider keinen. Cola und Minze, hat Dr. Ampulla gesagt. Und heiß!"
                            EndeWenn
                        Antwort "Hast du heute schon gegessen?"
                            Brokan: "Um sechs. Zwölf Eier und das Gestell dazu. Das ist lange her."
                                    "Etwas Süßes wäre schön. Mit Kirsche."
                        Schluss "Ein andermal."
                            Brokan: "Gut. Ich stehe hier."
                            Springe ENDE
                    EndeFrage
                    Marke URTEIL
                    Musik "sport.mid"
                    WennMerker PRÜGEL_SIEG
                        Brokan: "Uff. Gut gemacht. Das hat noch keiner geschafft, der auch lesen kann."
                        Marke SICHERUNG
                        SetzeMerker PRÜGEL_FERTIG
                        NimmGegenstand SICHERUNG
                        Brokan: "Hier, die Sicherung. Ich habe sie poliert. Mit dem Daumen."
                    Sonst
                        Brokan: "Oh. Habe ich dir wehgetan? Ich hole Eis. Nein, ich darf ja nicht weg."
                        Auswahl "Und jetzt?"
                            Fall "Noch einmal!"
                                Springe KAMPF
                            Fall "Laut weinen, bis er nachgibt."
                                BöseÄndern 1
                                Brokan: "Nicht weinen! Bitte nicht weinen! Da, nimm, nimm!"
                                Springe SICHERUNG
                            Option "Erst mal ausruhen."
                        EndeAuswahl
                    EndeWenn
                    Marke ENDE
                EndeWenn
            EndeGespräch
        Ablegen
            Bei KUCHEN
                GibGegenstand KUCHEN
                BöseÄndern -1
                Gespräch
                    Brokan: "Für mich? Mit Kirsche? Mir hat noch nie jemand Kuchen geschenkt."
                    WennMerker nicht PRÜGEL_FERTIG
                        SetzeMerker PRÜGEL_FERTIG
                        NimmGegenstand SICHERUNG
                        Brokan: "Du bist nicht »niemand«. Also darfst du durch. Hier, die Sicherung."
                    EndeWenn
                EndeGespräch
            Bei ZAUBERTRANK
                Velmix: "Den Trank nehme ich lieber selbst, sobald er kämpfen will. Ich muss ihn nur fragen."

    Objekt "Geräteraum"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 398 120 536 292
        Rechts
            Velmix: "Der Geräteraum. Da hinten, an der Wand: eine Sicherung mit einem Zettel »Keller«."
        Links
            Velmix: "An Brokan führt kein Weg vorbei. Brokan ist der Weg."

    Objekt "Automat"
        Zeiger "rad1.ico"
        Fläche
            Rechteck 98 168 166 262
            Rechteck 98 296 140 306
        Rechts
            Velmix: "Ein Getränkeautomat. Vier Sorten. Drei davon sind nur gemalt."
        Links
            WennMerker COLA
                Velmix: "»Leer. Ihr Sportlehrer.«"
            Sonst
                Auswahl "Der Automat brummt zufrieden."
                    Fall "Dagegentreten."
                        SetzeMerker COLA
                        BöseÄndern 1
                        Ton "rumms.wav"
                        Text "RUMMS. Klonk."
                        NimmGegenstand COLA
                        Velmix: "Eine Dose Cola. Der Automat brummt jetzt anders. Gekränkt."
                    Option "Erst eine Münze suchen."
                EndeAuswahl
            EndeWenn
        Ablegen
            Bei MÜNZE
                WennMerker COLA
                    Velmix: "Er ist leer. Die Münze behalte ich."
                Sonst
                    GibGegenstand MÜNZE
                    SetzeMerker COLA
                    NimmGegenstand COLA
                    Ton "muenze.wav"
                    Text "Klimper. Klonk."
                    Velmix: "Eine Dose Cola, gekühlt auf Hallentemperatur."
                EndeWenn

    Objekt "Springseil"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 334 188 364 260
        Rechts
            WennMerker PONG_FERTIG
                Velmix: "Kessas zweitbestes Seil. Das beste habe ich."
            Sonst
                Velmix: "Kessas Springseil. Reißfest, wetterfest, kessafest."
            EndeWenn
        Links
            WennMerker PONG_FERTIG
                Velmix: "Eins reicht mir."
            Sonst
                Kessa: "Finger weg! Das wird erspielt!"
            EndeWenn

    Objekt "Sprossenwand"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 178 112 272 168
            Rechteck 254 168 272 258
        Rechts
            Velmix: "Die Sprossenwand. Hier hing ich ganze Vormittage. Meistens freiwillig."

    Objekt "Korb"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 284 110 352 188
        Rechts
            Velmix: "Der Basketballkorb. Er hängt höher, als im Heft steht."
        Links
            Velmix: "Ich könnte jetzt werfen. Aber dann würde Brokan zusehen."

    Objekt "Ringe"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 364 24 396 170
        Rechts
            Velmix: "Die Ringe. Ich hing einmal daran und habe über mein Leben nachgedacht."

    Objekt "Platte"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 142 260, 410 260, 442 298, 430 394, 96 394, 80 296
        Rechts
            Velmix: "Die Platte. Auf Kessas Seite ist der Lack blank, auf der anderen die Angst."

    Objekt "Hallenfenster"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 104 42 360 104
        Rechts
            Velmix: "Fenster, so hoch, dass man nur die Ferien sieht."

    Objekt "Kasten"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 498 344 640 460
        Rechts
            Velmix: "Der Sprungkasten. Wir kennen uns. Er hat meistens gewonnen."

    Objekt "Medizinball"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 46 372 88 412
        Rechts
            Velmix: "Ein Medizinball. Die Medizin ist bitter und wiegt fünf Kilo."

    Objekt "Matte"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 0 412, 30 404, 206 404, 196 460, 0 460
        Rechts
            Velmix: "Die Weichbodenmatte. Unter ihr wurde 1994 ein Referendar gefunden."

    Objekt "Basketball"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 322 400 372 450
        Rechts
            Velmix: "Ein Basketball. Er ist runder als meine Noten in Sport."
        Links
            Ton "prellen.wav"
            Text "Dopp. Dopp. Dopp."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 26 106, 72 116, 72 302, 26 332
        Rechts
            Velmix: "Zurück in den Flur, dahin, wo man sitzen darf."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "seil.bmp"
    Rechts
        Velmix: "Ein Springseil. Wettkampflänge."

Gegenstand "cola.bmp"
    Rechts
        Velmix: "Cola. Kribbelt schon beim Ansehen."
    Links
        Velmix: "Erst die Arbeit, dann der Zucker."

Gegenstand "muenze.bmp" heißt MÜNZE
    Rechts
        Velmix: "Eine Mark. Die letzte ihrer Art."

Gegenstand "kuchen.bmp"
    Rechts
        Velmix: "Ein Stück Abschlusskuchen. Es sieht mich an, mit Kirsche."
    Links
        Velmix: "Ich hebe es auf. Jemand hat bestimmt mehr Hunger als ich."

Gegenstand "sicherung.bmp"
    Rechts
        Velmix: "Eine Schraubsicherung für den Keller. Sie glänzt wie Brokans Daumen."
