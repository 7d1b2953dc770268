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
            Portrait links "orlix.jpg"
            Portrait rechts "velmix.jpg"
            Ton "velmix-start-01.wav"
            Text "Alle sagen Velmix, Frau Orlix. Seit der fünften Klasse."
            Portrait links "orlix.jpg"
            Portrait rechts "velmix.jpg"
            Ton "orlix-start-02.wav"
            Text "$DDann eben Velmix! Die Master-CD ist weg!"
                 "$DGestern lag sie noch hier auf dem Pult, neben meinem Käsebrot."
            Portrait links "orlix.jpg"
            Portrait rechts "velmix.jpg"
            Ton "velmix-start-02.wav"
            Text "Und das Käsebrot?"
            Portrait links "orlix.jpg"
            Portrait rechts "velmix.jpg"
            Ton "orlix-start-03.wav"
            Text "$DDas Käsebrot ist noch da. Das macht die Sache ja so unheimlich."
            Portrait links "orlix.jpg"
            Portrait rechts "velmix.jpg"
            Ton "orlix-start-04.wav"
            Text "$DOhne Master keine CD, ohne CD kein Abschluss."
                 "$DDann müsst ihr alle noch ein Jahr bleiben. Ich auch!"
            Portrait links "orlix.jpg"
            Portrait rechts "velmix.jpg"
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
            Portrait links "orlix.jpg"
            Portrait rechts "velmix.jpg"
            Ton "orlix-start-05.wav"
            Text "$DNur noch eine Stunde, Velmix! Frag den Hausmeister."
                 "$DHerr Grobbel sieht alles. Er sagt es nur nicht von selbst."
            RahmenZu

    Objekt "Rednerpult"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 280 212, 352 212, 350 222, 342 286, 290 286
        Rechts
            ZoomIN 268 184 364 256
            Ton "velmix-start-05.wav"
            Text "Die Abschlussrede. Dreiundvierzig Seiten. Auf jeder steht einmal »kurzum«."
            ZoomOUT 268 184 364 256
        Links
            Ton "velmix-start-06.wav"
            Text "Ich rede lieber, wenn es etwas zu sagen gibt."

    Objekt "Anlage"
        Zeiger "rad1.ico"
        Fläche
            Vieleck 404 170, 444 170, 444 282, 404 282
        Rechts
            Ton "velmix-start-07.wav"
            Text "Die Anlage der Technik-AG. Sie spielt CDs, Kassetten und bei Gewitter Radio Moldau."
        Links
            Ton "velmix-start-08.wav"
            Text "Es liegt keine CD darin. Das ist ja das Problem."

    Objekt "Blumen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 78 210 126 262
        Rechts
            Ton "velmix-start-09.wav"
            Text "Blumen aus dem Schulgarten. Der Esel hat nur probiert."

    Objekt "Klavier"
        Zeiger "hand1.ico"
        Fläche
            Vieleck 10 274, 38 258, 146 258, 142 366, 118 388, 14 388
        Rechts
            Ton "velmix-start-10.wav"
            Text "Das Klavier. Das hohe C fehlt, seit Brokan darauf gespielt hat."
        Links
            Ton "klavier.wav"
            Text "Pling. Pling. Plonk."

    Objekt "Kuchen"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 428 284 496 342
        Rechts
            Ton "velmix-start-11.wav"
            Text "Der Abschlusskuchen. Drei Kerzen: eine für jedes Jahr Oberstufe."

    Objekt "Bowle"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 498 292 560 340
        Rechts
            Ton "velmix-start-12.wav"
            Text "Bowle ohne alles. Nur Obst, Saft und Aufsicht."

    Objekt "Tisch"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 408 340, 424 322, 558 322, 566 340, 566 394, 408 394
        Rechts
            Ton "velmix-start-13.wav"
            Text "Das gute Tischtuch. Es war auf dreißig Abschlussfeiern und man sieht jede."

    Objekt "Jacke"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 56 400 126 452
        Rechts
            Ton "velmix-start-14.wav"
            Text "Meine Jacke hält mir einen Platz frei. In der ersten Reihe, mit Ellbogen."

    Objekt "Stühle"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 0 402 216 480
            Rechteck 428 404 640 480
        Rechts
            Ton "velmix-start-15.wav"
            Text "Zweihundertvierzig Stühle. Herr Grobbel hat sie gezählt. Zweimal."

    Objekt "Banner"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 186 54 454 92
        Rechts
            Ton "velmix-start-16.wav"
            Text "ABSCHLUSS 2002. Die Kunst-AG hat beim B fast die Geduld verloren."

    Objekt "Spiegelkugel"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 302 0 338 46
        Rechts
            Ton "velmix-start-17.wav"
            Text "Sie dreht sich nur, wenn niemand hinsieht."

    Objekt "Uhr"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 490 70 522 102
        Rechts
            Ton "velmix-start-18.wav"
            Text "Kurz vor vier. In der Aula ist es immer kurz vor vier."

    Objekt "Luftballons"
        Zeiger "auge1.ico"
        Fläche
            Rechteck 106 106 150 236
            Rechteck 492 112 536 236
        Rechts
            Ton "velmix-start-19.wav"
            Text "Fünf Luftballons. Der Etat für Freude ist ausgeschöpft."

    Objekt "Fenster"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 10 60, 46 66, 46 266, 8 278
            Vieleck 62 80, 94 84, 94 246, 62 258
        Rechts
            Ton "velmix-start-20.wav"
            Text "Draußen ist Sommer. Drinnen ist noch Schule."

    Objekt "Vorhang"
        Zeiger "auge1.ico"
        Fläche
            Vieleck 156 84, 222 84, 214 150, 192 214, 204 287, 150 287
            Vieleck 486 84, 420 84, 428 150, 452 214, 440 287, 492 287
        Rechts
            Ton "velmix-start-21.wav"
            Text "Samt. Wenn man daran klopft, kommt die Theater-AG von 1979 heraus."

    Objekt "Flurtür"
        Zeiger "tuer1.ico"
        Fläche
            Vieleck 556 132, 622 118, 622 366, 556 330
        Rechts
            Text "Dort geht es in den Flur."
        Links
            Raumwechsel "Flur.lsd"
