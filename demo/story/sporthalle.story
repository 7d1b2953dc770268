// The sports hall: a match for a rope, a fight for a fuse.

Raum "Sporthalle.lsd"
    Bild "sporthalle.jpg"
    Start
        Musik "sport.mid"
        WennMerker SPORT_GESEHEN
        Sonst
            SetzeMerker SPORT_GESEHEN
            Ton "kessa-sporthalle-01.wav"
            Text "$CNa endlich! Ein Gegner! Oder bist du wegen der Hallenschuhe hier?"
        EndeWenn

    Objekt "Ball auf der Platte"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 320 270 400 290
        Rechts
            Ton "velmix-sporthalle-01.wav"
            Text "Mein Schläger. Der Belag ist aus der Zeit, als Gummi noch wild wuchs."

    Objekt "Kessa"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 184 190, 204 172, 252 176, 250 260, 186 260
        Rechts
            Ton "velmix-sporthalle-02.wav"
            Text "Kessa, Tischtenniskönigin. Sie hat drei Jahre lang nur einmal verloren:"
                 "eine Mütze."
        Links
            RahmenAuf
            WennMerker PONG_FERTIG
                Einbinden "gesicht/kessa.teil"
                Ton "kessa-sporthalle-02.wav"
                Text "$CDas war kein Sieg, das war ein Aussetzer. Von mir."
                     "$CRevanche auf dem Klassentreffen!"
            Sonst
                Einbinden "gesicht/kessa.teil"
                Ton "velmix-sporthalle-03.wav"
                Text "Kessa, leihst du mir dein Springseil?"
                Einbinden "gesicht/kessa.teil"
                Ton "kessa-sporthalle-03.wav"
                Text "$CLeihen? Erspielen! Bis elf. Wer gewinnt, kriegt das Seil."
                     "$CWer verliert, trägt mir die Tasche. Und ich habe viele Taschen."
                Einbinden "gesicht/kessa.teil"
                Auswahl "Kessa lässt den Ball auf dem Schlägerrand tanzen."
                Fall "Angenommen!"
                    Marke SPIEL
                    Spiel PONG PONG_SIEG
                    Musik "sport.mid"
                    WennMerker PONG_SIEG
                        Einbinden "gesicht/kessa.teil"
                        Ton "kessa-sporthalle-04.wav"
                        Text "$CDas ist nicht passiert. Das bleibt unter uns."
                             "$CHier, das Seil. Hüpf damit, bis du Muskeln hast."
                        Marke SEIL
                        SetzeMerker PONG_FERTIG
                        NimmGegenstand "seil.bmp"
                        Einbinden "gesicht/kessa.teil"
                        Ton "velmix-sporthalle-04.wav"
                        Text "Ich will damit nur angeln."
                        Einbinden "gesicht/kessa.teil"
                        Ton "kessa-sporthalle-05.wav"
                        Text "$CJeder trainiert anders."
                    Sonst
                        Einbinden "gesicht/kessa.teil"
                        Ton "kessa-sporthalle-06.wav"
                        Text "$CUnd das war mit links. Nein, wirklich: Ich war die Linke."
                        Einbinden "gesicht/kessa.teil"
                        Auswahl "Noch einmal?"
                        Fall "Noch einmal!"
                            Springe SPIEL
                        Fall "Rufen: »Da, ein Talentsucher!« und das Seil nehmen."
                            BöseÄndern 1
                            Einbinden "gesicht/kessa.teil"
                            Ton "kessa-sporthalle-07.wav"
                            Text "$CWo? Wo? Moment mal. Wo ist mein Seil?"
                            Springe SEIL
                        Option "Später."
                        EndeAuswahl
                    EndeWenn
                Option "Ich wärme mich erst auf."
                EndeAuswahl
            EndeWenn
            RahmenZu
        Ablegen
            WennParameter MUENZE
                Ton "kessa-sporthalle-08.wav"
                Text "$CWillst du mich bestechen? Ich nehme nur Pokale."
            Sonst
                Fehlerton
            EndeWenn

    Objekt "Brokan"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 466 172, 512 172, 530 230, 526 280, 514 356, 464 356, 456 270, 444 236
        Rechts
            Ton "velmix-sporthalle-05.wav"
            Text "Brokan. Er hat einmal einen Barren getragen."
                 "Weil ihn niemand gebeten hat, ihn zu rollen."
        Links
            RahmenAuf
            WennMerker PRÜGEL_FERTIG
                Einbinden "gesicht/brokan.teil"
                Ton "brokan-sporthalle-01.wav"
                Text "$AWir sind jetzt Freunde, ja? Ich hatte noch nie einen."
                     "$AAlso, außer dem Sandsack."
            Sonst
                Einbinden "gesicht/brokan.teil"
                Ton "velmix-sporthalle-06.wav"
                Text "Brokan, hinter dir hängt eine Sicherung. Die brauche ich für den Keller."
                Einbinden "gesicht/brokan.teil"
                Ton "brokan-sporthalle-02.wav"
                Text "$AGeräteraum ist zu. Herr Grobbel hat gesagt: Niemand kommt durch."
                     "$AAlso kommt niemand durch. Außer er kämpft mit mir. Hat er auch gesagt."
                Marke FRAGE
                Einbinden "gesicht/brokan.teil"
                Auswahl "Brokans Magen knurrt. Oder das war Brokan."
                Fall "Dann kämpfen wir."
                    Marke KAMPF
                    Spiel PRÜGEL PRÜGEL_SIEG
                    Springe URTEIL
                Fall "Erst ein Schluck Zaubertrank, dann kämpfen."
                    WennMerker TRANK
                        Spiel PRÜGEL PRÜGEL_SIEG zaubertrank
                        Springe URTEIL
                    Sonst
                        Einbinden "gesicht/brokan.teil"
                        Ton "velmix-sporthalle-07.wav"
                        Text "Ich habe nur leider keinen. Cola und Minze, hat Dr. Ampulla gesagt. Und heiß!"
                        Springe FRAGE
                    EndeWenn
                Fall "Hast du heute schon gegessen?"
                    Einbinden "gesicht/brokan.teil"
                    Ton "brokan-sporthalle-03.wav"
                    Text "$AUm sechs. Zwölf Eier und das Gestell dazu. Das ist lange her."
                         "$AEtwas Süßes wäre schön. Mit Kirsche."
                    Springe FRAGE
                Fall "Ein andermal."
                    Einbinden "gesicht/brokan.teil"
                    Ton "brokan-sporthalle-04.wav"
                    Text "$AGut. Ich stehe hier."
                    Springe ENDE
                EndeAuswahl
                Marke URTEIL
                Musik "sport.mid"
                WennMerker PRÜGEL_SIEG
                    Einbinden "gesicht/brokan.teil"
                    Ton "brokan-sporthalle-05.wav"
                    Text "$AUff. Gut gemacht. Das hat noch keiner geschafft, der auch lesen kann."
                    Marke SICHERUNG
                    SetzeMerker PRÜGEL_FERTIG
                    NimmGegenstand "sicherung.bmp"
                    Einbinden "gesicht/brokan.teil"
                    Ton "brokan-sporthalle-06.wav"
                    Text "$AHier, die Sicherung. Ich habe sie poliert. Mit dem Daumen."
                Sonst
                    Einbinden "gesicht/brokan.teil"
                    Ton "brokan-sporthalle-07.wav"
                    Text "$AOh. Habe ich dir wehgetan? Ich hole Eis. Nein, ich darf ja nicht weg."
                    Einbinden "gesicht/brokan.teil"
                    Auswahl "Und jetzt?"
                    Fall "Noch einmal!"
                        Springe KAMPF
                    Fall "Laut weinen, bis er nachgibt."
                        BöseÄndern 1
                        Einbinden "gesicht/brokan.teil"
                        Ton "brokan-sporthalle-08.wav"
                        Text "$ANicht weinen! Bitte nicht weinen! Da, nimm, nimm!"
                        Springe SICHERUNG
                    Option "Erst mal ausruhen."
                    EndeAuswahl
                EndeWenn
                Marke ENDE
            EndeWenn
            RahmenZu
        Ablegen
            WennParameter KUCHEN
                GibGegenstand "kuchen.bmp"
                BöseÄndern -1
                RahmenAuf
                Einbinden "gesicht/brokan.teil"
                Ton "brokan-sporthalle-09.wav"
                Text "$AFür mich? Mit Kirsche? Mir hat noch nie jemand Kuchen geschenkt."
                WennMerker PRÜGEL_FERTIG
                Sonst
                    SetzeMerker PRÜGEL_FERTIG
                    NimmGegenstand "sicherung.bmp"
                    Einbinden "gesicht/brokan.teil"
                    Ton "brokan-sporthalle-10.wav"
                    Text "$ADu bist nicht »niemand«. Also darfst du durch. Hier, die Sicherung."
                EndeWenn
                RahmenZu
            Sonst
                WennParameter ZAUBERTRANK
                    Ton "velmix-sporthalle-08.wav"
                    Text "Den Trank nehme ich lieber selbst. Sag ihm einfach, dass du kämpfen willst, Velmix."
                    SetzeMerker TRANK
                Sonst
                    Fehlerton
                EndeWenn
            EndeWenn

    Objekt "Geräteraum"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 398 120 536 292
        Rechts
            Ton "velmix-sporthalle-09.wav"
            Text "Der Geräteraum. Da hinten, an der Wand: eine Sicherung mit einem Zettel »Keller«."
        Links
            Ton "velmix-sporthalle-10.wav"
            Text "An Brokan führt kein Weg vorbei. Brokan ist der Weg."

    Objekt "Automat"
        Zeiger "rad1.ico"
        Fläche
            Rechteck 98 168 166 262
            Rechteck 98 296 140 306
        Rechts
            Ton "velmix-sporthalle-11.wav"
            Text "Ein Getränkeautomat. Vier Sorten. Drei davon sind nur gemalt."
        Links
            WennMerker COLA
                Ton "velmix-sporthalle-12.wav"
                Text "»Leer. Ihr Sportlehrer.«"
            Sonst
                Auswahl "Der Automat brummt zufrieden."
                Fall "Dagegentreten."
                    SetzeMerker COLA
                    BöseÄndern 1
                    Ton "rumms.wav"
                    Text "RUMMS. Klonk."
                    NimmGegenstand "cola.bmp"
                    Ton "velmix-sporthalle-13.wav"
                    Text "Eine Dose Cola. Der Automat brummt jetzt anders. Gekränkt."
                Option "Erst eine Münze suchen."
                EndeAuswahl
            EndeWenn
        Ablegen
            WennParameter MUENZE
                WennMerker COLA
                    Ton "velmix-sporthalle-14.wav"
                    Text "Er ist leer. Die Münze behalte ich."
                Sonst
                    GibGegenstand "muenze.bmp"
                    SetzeMerker COLA
                    NimmGegenstand "cola.bmp"
                    Ton "muenze.wav"
                    Text "Klimper. Klonk."
                    Ton "velmix-sporthalle-15.wav"
                    Text "Eine Dose Cola, gekühlt auf Hallentemperatur."
                EndeWenn
            Sonst
                Fehlerton
            EndeWenn

    Objekt "Springseil"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 334 188 364 260
        Rechts
            WennMerker PONG_FERTIG
                Ton "velmix-sporthalle-16.wav"
                Text "Kessas zweitbestes Seil. Das beste habe ich."
            Sonst
                Ton "velmix-sporthalle-17.wav"
                Text "Kessas Springseil. Reißfest, wetterfest, kessafest."
            EndeWenn
        Links
            WennMerker PONG_FERTIG
                Ton "velmix-sporthalle-18.wav"
                Text "Eins reicht mir."
            Sonst
                Ton "kessa-sporthalle-09.wav"
                Text "$CFinger weg! Das wird erspielt!"
            EndeWenn

    Objekt "Sprossenwand"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 178 112 272 168
            Rechteck 254 168 272 258
        Rechts
            Ton "velmix-sporthalle-19.wav"
            Text "Die Sprossenwand. Hier hing ich ganze Vormittage. Meistens freiwillig."

    Objekt "Korb"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 284 110 352 188
        Rechts
            Ton "velmix-sporthalle-20.wav"
            Text "Der Basketballkorb. Er hängt höher, als im Heft steht."
        Links
            Ton "velmix-sporthalle-21.wav"
            Text "Ich könnte jetzt werfen. Aber dann würde Brokan zusehen."

    Objekt "Ringe"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 364 24 396 170
        Rechts
            Ton "velmix-sporthalle-22.wav"
            Text "Die Ringe. Ich hing einmal daran und habe über mein Leben nachgedacht."

    Objekt "Platte"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 142 260, 410 260, 442 298, 430 394, 96 394, 80 296
        Rechts
            Ton "velmix-sporthalle-23.wav"
            Text "Die Platte. Auf Kessas Seite ist der Lack blank, auf der anderen die Angst."

    Objekt "Hallenfenster"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 104 42 360 104
        Rechts
            Ton "velmix-sporthalle-24.wav"
            Text "Fenster, so hoch, dass man nur die Ferien sieht."

    Objekt "Kasten"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 498 344 640 460
        Rechts
            Ton "velmix-sporthalle-25.wav"
            Text "Der Sprungkasten. Wir kennen uns. Er hat meistens gewonnen."

    Objekt "Medizinball"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 46 372 88 412
        Rechts
            Ton "velmix-sporthalle-26.wav"
            Text "Ein Medizinball. Die Medizin ist bitter und wiegt fünf Kilo."

    Objekt "Matte"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 0 412, 30 404, 206 404, 196 460, 0 460
        Rechts
            Ton "velmix-sporthalle-27.wav"
            Text "Die Weichbodenmatte. Unter ihr wurde 1994 ein Referendar gefunden."

    Objekt "Basketball"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 322 400 372 450
        Rechts
            Ton "velmix-sporthalle-28.wav"
            Text "Ein Basketball. Er ist runder als meine Noten in Sport."
        Links
            Ton "prellen.wav"
            Text "Dopp. Dopp. Dopp."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 26 106, 72 116, 72 302, 26 332
        Rechts
            Ton "velmix-sporthalle-29.wav"
            Text "Zurück in den Flur, dahin, wo man sitzen darf."
        Links
            Raumwechsel "Flur.lsd"

Gegenstand "seil.bmp"
    Rechts
        Ton "velmix-sporthalle-30.wav"
        Text "Ein Springseil. Wettkampflänge."
    Ablegen
        WennParameter MAGNET
            GibGegenstand "seil.bmp"
            GibGegenstand "magnet.bmp"
            NimmGegenstand "angel.bmp"
            Ton "velmix-sporthalle-31.wav"
            Text "Magnet an Seil: eine Angel für Schlüssel. Physik-LK, ich danke dir."
        Sonst
            Fehlerton
        EndeWenn

Gegenstand "cola.bmp"
    Rechts
        Ton "velmix-sporthalle-32.wav"
        Text "Cola. Kribbelt schon beim Ansehen."
    Links
        Ton "velmix-sporthalle-33.wav"
        Text "Erst die Arbeit, dann der Zucker."
    Ablegen
        WennParameter MINZE
            GibGegenstand "cola.bmp"
            GibGegenstand "minze.bmp"
            NimmGegenstand "mischung.bmp"
            Ton "blubber.wav"
            Text "Zisch. Blubber."
            Ton "velmix-sporthalle-34.wav"
            Text "Es schäumt. Es schäumt sehr. Jetzt müsste man es nur noch erhitzen."
        Sonst
            Fehlerton
        EndeWenn

Gegenstand "muenze.bmp"
    Rechts
        Ton "velmix-sporthalle-35.wav"
        Text "Eine Mark. Die letzte ihrer Art."

Gegenstand "kuchen.bmp"
    Rechts
        Ton "velmix-sporthalle-36.wav"
        Text "Ein Stück Abschlusskuchen. Es sieht mich an, mit Kirsche."
    Links
        Ton "velmix-sporthalle-37.wav"
        Text "Ich hebe es auf. Jemand hat bestimmt mehr Hunger als ich."

Gegenstand "sicherung.bmp"
    Rechts
        Ton "velmix-sporthalle-38.wav"
        Text "Eine Schraubsicherung für den Keller. Sie glänzt wie Brokans Daumen."
