// The assembly hall. Here the story begins, and here the disc has to arrive.

Raum "Start.lsd"
    Bild "aula.jpg"
    Start
        Musik "aula.mid"
        WennMerker INTRO
        Sonst
            SetzeMerker INTRO
            Blende zurück
            Text "Bramhof Gymnasium, Sommer 2002."
                 "Der allerletzte Nachmittag."
            Text "In einer Stunde wird gefeiert."
                 "Und jeder bekommt die Kursus-CD: drei Jahre Schule, gebrannt auf eine Scheibe."
            ZoomIN 176 104 352 236
            Ton "orlix-start-01.wav"
            Text "$DVelmar! Velmar, wo steckst du denn? Hierher! Sofort!"
            ZoomOUT 176 104 352 236
            RahmenAuf
            Einbinden "gesicht/orlix.teil"
            Ton "velmix-start-01.wav"
            Text "Alle sagen Velmix, Frau Orlix. Seit der fünften Klasse."
            Einbinden "gesicht/orlix.teil"
            Ton "orlix-start-02.wav"
            Text "$DDann eben Velmix! Die Master-CD ist weg!"
                 "$DGestern lag sie noch hier auf dem Pult, neben meinem Käsebrot."
            Einbinden "gesicht/orlix.teil"
            Ton "velmix-start-02.wav"
            Text "Und das Käsebrot?"
            Einbinden "gesicht/orlix.teil"
            Ton "orlix-start-03.wav"
            Text "$DDas Käsebrot ist noch da. Das macht die Sache ja so unheimlich."
            Einbinden "gesicht/orlix.teil"
            Ton "orlix-start-04.wav"
            Text "$DOhne Master keine CD, ohne CD kein Abschluss."
                 "$DDann müsst ihr alle noch ein Jahr bleiben. Ich auch!"
            Einbinden "gesicht/orlix.teil"
            Ton "velmix-start-03.wav"
            Text "Ich finde sie. Noch ein Jahr Kantine überlebe ich nicht."
            RahmenZu
        EndeWenn

    Objekt "Frau Orlix"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 236 124, 266 124, 272 170, 280 212, 276 284, 228 284, 232 210, 222 190, 220 140
        Rechts
            Ton "velmix-start-04.wav"
            Text "Frau Orlix. Direktorin, Mathe und Kirchenchor."
                 "Der Zeigefinger steht seit 1987 so."
        Links
            RahmenAuf
            Marke FRAGEN
            Einbinden "gesicht/orlix.teil"
            Auswahl "Frau Orlix sieht mich über die Brille hinweg an."
            Fall "Wo soll ich anfangen?"
                Einbinden "gesicht/orlix.teil"
                Ton "orlix-start-05.wav"
                Text "$DFrag den Hausmeister im Flur!"
                     "$DHerr Grobbel sieht alles. Er sagt es nur nicht von selbst."
                Springe FRAGEN
            Fall "Darf ich ein Stück Kuchen?"
                WennMerker KUCHEN_ERLAUBT
                    Einbinden "gesicht/orlix.teil"
                    Ton "orlix-start-06.wav"
                    Text "$DDu hast schon gefragt, und ich habe schon ja gesagt!"
                Sonst
                    SetzeMerker KUCHEN_ERLAUBT
                    Einbinden "gesicht/orlix.teil"
                    Ton "orlix-start-07.wav"
                    Text "$DEin Stück. Ein kleines!"
                         "$DUnd weil du gefragt hast, sogar das mit der Kirsche."
                EndeWenn
                Springe FRAGEN
            Fall "Was ist eigentlich im Keller?"
                Einbinden "gesicht/orlix.teil"
                Ton "orlix-start-08.wav"
                Text "$DNichts! Gar nichts!"
                     "$DNur ein Rechner von 1974, und der ist beleidigt."
                Einbinden "gesicht/orlix.teil"
                Ton "velmix-start-05.wav"
                Text "Ein Rechner kann nicht beleidigt sein."
                Einbinden "gesicht/orlix.teil"
                Ton "orlix-start-09.wav"
                Text "$DDas hat der Informatiklehrer auch gesagt. Vor seinem Sabbatjahr."
                Springe FRAGEN
            Fall "Bin schon unterwegs."
                Einbinden "gesicht/orlix.teil"
                Ton "orlix-start-10.wav"
                Text "$DUnd nicht auf den Fluren rennen!"
            EndeAuswahl
            RahmenZu

    Objekt "Rednerpult"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 284 212, 352 212, 350 222, 342 286, 290 286
        Rechts
            ZoomIN 268 184 364 256
            Ton "velmix-start-06.wav"
            Text "Die Abschlussrede. Dreiundvierzig Seiten. Auf jeder steht einmal »kurzum«."
            ZoomOUT 268 184 364 256
        Links
            Ton "velmix-start-07.wav"
            Text "Ich rede lieber, wenn es etwas zu sagen gibt."

    Objekt "Anlage"
        Zeiger "rad1.ico"
        Fläche
            Vieleck 404 170, 444 170, 444 282, 404 282
        Rechts
            Ton "velmix-start-08.wav"
            Text "Die Anlage der Technik-AG."
                 "Sie spielt CDs, Kassetten und bei Gewitter Radio Moldau."
        Links
            Ton "velmix-start-09.wav"
            Text "Es liegt keine CD darin. Das ist ja das Problem."
        Ablegen
            WennParameter CD
                GibGegenstand "cd.bmp"
                Ton "velmix-start-10.wav"
                Text "Master eingelegt. Frau Orlix, es kann losgehen!"
                Ton "orlix-start-11.wav"
                Text "$DEndlich! Macht das Licht aus! Macht das andere Licht an!"
                Blende weiß
                Raumwechsel "Finale.lsd"
            Sonst
                WennParameter DISKETTE
                    Ton "velmix-start-11.wav"
                    Text "Die passt hier nicht hinein. Die Anlage ist zu jung."
                Sonst
                    Fehlerton
                EndeWenn
            EndeWenn

    Objekt "Blumen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 78 210 126 256
        Rechts
            Ton "velmix-start-12.wav"
            Text "Blumen aus dem Schulgarten. Der Esel hat nur probiert."
        Links
            Ton "velmix-start-13.wav"
            Text "Ich lasse sie stehen. Sie sind das Einzige, was hier gerade Ruhe ausstrahlt."

    Objekt "Klavier"
        Zeiger "hand1.ico"
        Fläche
            Vieleck 10 274, 38 258, 146 258, 142 366, 118 388, 14 388
        Rechts
            Ton "velmix-start-14.wav"
            Text "Das Klavier. Das hohe C klemmt, seit Brokan darauf gespielt hat."
        Links
            Ton "klavier.wav"
            Text "Pling. Pling. Plonk."
            WennMerker MÜNZE
                Ton "velmix-start-15.wav"
                Text "Jetzt klemmt nichts mehr. Schade, es klang so modern."
            Sonst
                SetzeMerker MÜNZE
                NimmGegenstand "muenze.bmp"
                Ton "muenze.wav"
                Text "Kling, kling, kuller."
                Ton "velmix-start-16.wav"
                Text "Unter dem hohen C steckte eine Münze! Die nehme ich als Gage."
            EndeWenn

    Objekt "Kuchen"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 428 284 496 342
        Rechts
            Ton "velmix-start-17.wav"
            Text "Der Abschlusskuchen. Drei Kerzen: eine für jedes Jahr Oberstufe."
        Links
            WennMerker KUCHEN
                Ton "velmix-start-18.wav"
                Text "Noch ein Stück, und die Lücke fällt auf."
            Sonst
                WennMerker KUCHEN_ERLAUBT
                    SetzeMerker KUCHEN
                    NimmGegenstand "kuchen.bmp"
                    Ton "velmix-start-19.wav"
                    Text "Das Stück mit der Kirsche. Ich habe schließlich gefragt."
                Sonst
                    Auswahl "Frau Orlix sieht gerade aus dem Fenster."
                    Fall "Heimlich ein Stück nehmen."
                        SetzeMerker KUCHEN
                        BöseÄndern 1
                        NimmGegenstand "kuchen.bmp"
                        Ton "velmix-start-20.wav"
                        Text "Ich habe nichts genommen. Das ist Pythagoras."
                    Fall "Erst fragen."
                        Ton "velmix-start-21.wav"
                        Text "Ich frage lieber erst Frau Orlix."
                    EndeAuswahl
                EndeWenn
            EndeWenn

    Objekt "Bowle"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 498 292 560 340
        Rechts
            Ton "velmix-start-22.wav"
            Text "Bowle ohne alles. Nur Obst, Saft und Aufsicht."
        Links
            Ton "velmix-start-23.wav"
            Text "Erst die CD, dann die Bowle."

    Objekt "Tischtuch"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 408 340, 424 322, 558 322, 566 340, 566 394, 408 394
        Rechts
            Ton "velmix-start-24.wav"
            Text "Das gute Tischtuch. Es war auf dreißig Abschlussfeiern, und man sieht jede."

    Objekt "Jacke"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 56 400 126 452
        Rechts
            Ton "velmix-start-25.wav"
            Text "Meine Jacke hält mir einen Platz frei. In der ersten Reihe, mit Ellbogen."
        Links
            Ton "velmix-start-26.wav"
            Text "Die Taschen sind leer. Wie vor jedem Monatsende."

    Objekt "Stühle"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 0 402 216 480
            Rechteck 428 404 640 480
        Rechts
            Ton "velmix-start-27.wav"
            Text "Zweihundertvierzig Stühle. Herr Grobbel hat sie gezählt. Zweimal."

    Objekt "Banner"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 186 54 454 92
        Rechts
            Ton "velmix-start-28.wav"
            Text "ABSCHLUSS 2002. Die Kunst-AG hat beim B fast die Geduld verloren."

    Objekt "Spiegelkugel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 302 0 338 46
        Rechts
            Ton "velmix-start-29.wav"
            Text "Sie dreht sich nur, wenn niemand hinsieht."

    Objekt "Uhr"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 490 70 522 102
        Rechts
            Ton "velmix-start-30.wav"
            Text "Kurz vor vier. In der Aula ist es immer kurz vor vier."

    Objekt "Luftballons"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 106 106 150 236
            Rechteck 492 112 536 236
        Rechts
            Ton "velmix-start-31.wav"
            Text "Fünf Luftballons. Der Etat für Freude ist ausgeschöpft."

    Objekt "Fenster"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 10 60, 46 66, 46 266, 8 278
            Vieleck 62 80, 94 84, 94 246, 62 258
        Rechts
            Ton "velmix-start-32.wav"
            Text "Draußen ist Sommer. Drinnen ist noch Schule."

    Objekt "Vorhang"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 156 84, 222 84, 214 150, 192 214, 204 287, 150 287
            Vieleck 486 84, 420 84, 428 150, 452 214, 446 287, 492 287
        Rechts
            Ton "velmix-start-33.wav"
            Text "Samt. Wenn man daran klopft, kommt die Theater-AG von 1979 heraus."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 556 132, 622 118, 622 366, 556 330
        Rechts
            Ton "velmix-start-34.wav"
            Text "Dort geht es in den Flur."
        Links
            Raumwechsel "Flur.lsd"
