// The assembly hall. Here the story begins, and here the disc has to arrive.

Raum "Start.lsd"
    Bild "aula.jpg"
    Start
        Musik "aula.mid"
        WennMerker nicht INTRO
            SetzeMerker INTRO
            Blende zurück
            Text "Bramhof Gymnasium, Sommer 2002."
                 "Der allerletzte Nachmittag."
            Text "In einer Stunde wird gefeiert."
                 "Und jeder bekommt die Kursus-CD: drei Jahre Schule, gebrannt auf eine Scheibe."
            ZoomIN 176 104 352 236
            Orlix: "Velmar! Velmar, wo steckst du denn? Hierher! Sofort!"
            ZoomOUT 176 104 352 236
            Gespräch
                Velmix: "Alle sagen Velmix, Frau Orlix. Seit der fünften Klasse."
                Orlix: "Dann eben Velmix! Die Master-CD ist weg!"
                       "Gestern lag sie noch hier auf dem Pult, neben meinem Käsebrot."
                Velmix: "Und das Käsebrot?"
                Orlix: "Das Käsebrot ist noch da. Das macht die Sache ja so unheimlich."
                Orlix: "Ohne Master keine CD, ohne CD kein Abschluss."
                       "Dann müsst ihr alle noch ein Jahr bleiben. Ich auch!"
                Velmix: "Ich finde sie. Noch ein Jahr Kantine überlebe ich nicht."
                        "Links zupacken, rechts hinsehen: Mehr hat man mir hier nicht beigebracht."
            EndeGespräch
        EndeWenn

    Objekt "Frau Orlix"
        Zeiger "mund1.ico"
        Fläche
            Vieleck 236 124, 266 124, 272 170, 280 212, 276 284, 228 284, 232 210, 222 190, 220 140
        Rechts
            Velmix: "Frau Orlix. Direktorin, Mathe und Kirchenchor."
                    "Der Zeigefinger steht seit 1987 so."
        Links
            Gespräch
                Frage "Frau Orlix sieht mich über die Brille hinweg an."
                    Antwort "Wo soll ich anfangen?"
                        WennMerker CD
                            Orlix: "Du hast sie ja! In die Anlage damit, ehe ich sie noch einmal verlege!"
                        SonstWenn KELLER_OFFEN
                            Orlix: "Der Keller ist offen? Dann hinunter! Und mach Licht, du trittst mir sonst auf die Akten!"
                                   "Wenn einer die CD hat, dann der da unten."
                        Sonst
                            Orlix: "Frag den Hausmeister im Flur!"
                                   "Herr Grobbel sieht alles. Er sagt es nur nicht von selbst."
                        EndeWenn
                    Antwort "Darf ich ein Stück Kuchen?"
                        WennMerker KUCHEN_ERLAUBT
                            Orlix: "Du hast schon gefragt, und ich habe schon ja gesagt!"
                        Sonst
                            SetzeMerker KUCHEN_ERLAUBT
                            Orlix: "Ein Stück. Ein kleines!"
                                   "Und weil du gefragt hast, sogar das mit der Kirsche."
                        EndeWenn
                    Antwort "Was ist eigentlich im Keller?"
                        Orlix: "Nichts! Gar nichts!"
                               "Nur ein Rechner von 1974, und der ist beleidigt."
                        Velmix: "Ein Rechner kann nicht beleidigt sein."
                        Orlix: "Das hat der Informatiklehrer auch gesagt. Vor seinem Sabbatjahr."
                    Schluss "Bin schon unterwegs."
                        Orlix: "Und nicht auf den Fluren rennen!"
            EndeGespräch
        Ablegen
            Bei SCHLÜSSEL
                Orlix: "Der Kellerschlüssel! Steh hier nicht herum und zeig ihn mir, schließ damit auf!"
            Bei SICHERUNG
                Orlix: "Eine Sicherung? Im Keller ist es seit Wochen dunkel. Denk an die CD, nicht an mich!"
            Bei DISKETTE
                Orlix: "Die kenne ich! Dazu hat der alte Kasten immer gesummt, als er noch Freunde hatte."
            Bei CD
                Orlix: "Nicht mir! Der Anlage!"

    Objekt "Rednerpult"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 284 212, 352 212, 350 222, 342 286, 290 286
        Rechts
            ZoomIN 268 184 364 256
            Velmix: "Die Abschlussrede. Dreiundvierzig Seiten. Auf jeder steht einmal »kurzum«."
            ZoomOUT 268 184 364 256
        Links
            Velmix: "Ich rede lieber, wenn es etwas zu sagen gibt."

    Objekt "Anlage"
        Zeiger "rad1.ico"
        Fläche
            Vieleck 404 170, 444 170, 444 282, 404 282
        Rechts
            Velmix: "Die Anlage der Technik-AG."
                    "Sie spielt CDs, Kassetten und bei Gewitter Radio Moldau."
        Links
            Velmix: "Es liegt keine CD darin. Das ist ja das Problem."
        Ablegen
            Bei CD
                GibGegenstand CD
                Velmix: "Master eingelegt. Frau Orlix, es kann losgehen!"
                Orlix: "Endlich! Macht das Licht aus! Macht das andere Licht an!"
                Blende weiß
                Raumwechsel "Finale.lsd"
            Bei DISKETTE
                Velmix: "Die passt hier nicht hinein. Die Anlage ist zu jung."

    Objekt "Blumen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 78 210 126 256
        Rechts
            Velmix: "Blumen aus dem Schulgarten. Der Esel hat nur probiert."
        Links
            Velmix: "Ich lasse sie stehen. Sie sind das Einzige, was hier gerade Ruhe ausstrahlt."

    Objekt "Klavier"
        Zeiger "hand1.ico"
        Fläche
            Vieleck 10 274, 38 258, 146 258, 142 366, 118 388, 14 388
        Rechts
            Velmix: "Das Klavier. Das hohe C klemmt, seit Brokan darauf gespielt hat."
        Links
            Ton "klavier.wav"
            Text "Pling. Pling. Plonk."
            WennMerker MÜNZE
                Velmix: "Jetzt klemmt nichts mehr. Schade, es klang so modern."
            Sonst
                SetzeMerker MÜNZE
                NimmGegenstand MÜNZE
                Ton "muenze.wav"
                Text "Kling, kling, kuller."
                Velmix: "Unter dem hohen C steckte eine Münze! Die nehme ich als Gage."
                        "Ab in die Tasche. Die Leertaste macht sie auf und wieder zu."
            EndeWenn

    Objekt "Kuchen"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 428 284 496 342
        Rechts
            Velmix: "Der Abschlusskuchen. Drei Kerzen: eine für jedes Jahr Oberstufe."
        Links
            WennMerker KUCHEN
                Velmix: "Noch ein Stück, und die Lücke fällt auf."
            SonstWenn KUCHEN_ERLAUBT
                SetzeMerker KUCHEN
                NimmGegenstand KUCHEN
                Velmix: "Das Stück mit der Kirsche. Ich habe schließlich gefragt."
                        "Es passt genau in die Tasche. Unter die Leertaste."
            Sonst
                Auswahl "Frau Orlix sieht gerade aus dem Fenster."
                    Fall "Heimlich ein Stück nehmen."
                        SetzeMerker KUCHEN
                        BöseÄndern 1
                        NimmGegenstand KUCHEN
                        Velmix: "Ich habe nichts genommen. Das ist Pythagoras."
                    Fall "Erst fragen."
                        Velmix: "Ich frage lieber erst Frau Orlix."
                EndeAuswahl
            EndeWenn

    Objekt "Bowle"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 498 292 560 340
        Rechts
            Velmix: "Bowle ohne alles. Nur Obst, Saft und Aufsicht."
        Links
            Velmix: "Erst die CD, dann die Bowle."

    Objekt "Tischtuch"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 408 340, 424 322, 558 322, 566 340, 566 394, 408 394
        Rechts
            Velmix: "Das gute Tischtuch. Es war auf dreißig Abschlussfeiern, und man sieht jede."

    Objekt "Jacke"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 56 400 126 452
        Rechts
            Velmix: "Meine Jacke hält mir einen Platz frei. In der ersten Reihe, mit Ellbogen."
        Links
            Velmix: "Die Taschen sind leer. Wie vor jedem Monatsende."

    Objekt "Stühle"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 0 402 216 480
            Rechteck 428 404 640 480
        Rechts
            Velmix: "Zweihundertvierzig Stühle. Herr Grobbel hat sie gezählt. Zweimal."

    Objekt "Banner"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 186 54 454 92
        Rechts
            Velmix: "ABSCHLUSS 2002. Die Kunst-AG hat beim B fast die Geduld verloren."

    Objekt "Spiegelkugel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 302 0 338 46
        Rechts
            Velmix: "Sie dreht sich nur, wenn niemand hinsieht."

    Objekt "Uhr"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 490 70 522 102
        Rechts
            Velmix: "Kurz vor vier. In der Aula ist es immer kurz vor vier."

    Objekt "Luftballons"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 106 106 150 236
            Rechteck 492 112 536 236
        Rechts
            Velmix: "Fünf Luftballons. Der Etat für Freude ist ausgeschöpft."

    Objekt "Fenster"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 10 60, 46 66, 46 266, 8 278
            Vieleck 62 80, 94 84, 94 246, 62 258
        Rechts
            Velmix: "Draußen ist Sommer. Drinnen ist noch Schule."

    Objekt "Vorhang"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 156 84, 222 84, 214 150, 192 214, 204 287, 150 287
            Vieleck 486 84, 420 84, 428 150, 452 214, 446 287, 492 287
        Rechts
            Velmix: "Samt. Wenn man daran klopft, kommt die Theater-AG von 1979 heraus."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 556 132, 622 118, 622 366, 556 330
        Rechts
            Velmix: "Dort geht es in den Flur."
        Links
            Raumwechsel "Flur.lsd"
