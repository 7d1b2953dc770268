// What is missing or damaged is named and left out, and the game goes on.
Raum "Fehlendes.lsd"
    Bild "red.bmp"
    Objekt "Portrait"
        Fläche
            Rechteck 0 0 20 20
        Links
            RahmenAuf
            Portrait links "fehlt.bmp"
            Portrait rechts "blue.bmp"
            SetzeMerker PORTRAIT
        Rechts
            Roh Portrait "1,"
            SetzeMerker OHNE
    Objekt "Bild"
        Fläche
            Rechteck 20 0 40 20
        Links
            ZeigBild "kaputt.bmp"
            SetzeMerker BILD
    Objekt "Tür"
        Fläche
            Rechteck 40 0 60 20
        Links
            SetzeMerker TÜR
            Raumwechsel "Gibt es nicht.lsd"
            SetzeMerker NIE
    Objekt "Kette"
        Fläche
            Rechteck 60 0 80 20
        Links
            Raumwechsel "Kettenglied.lsd"
    Objekt "Wand"
        Fläche
            Rechteck 100 100 200 200
        Links
            SetzeMerker WAND

Raum "Kettenglied.lsd"
    Bild "blue.bmp"
    Start
        SetzeMerker GLIED
        Raumwechsel "Kaputt.lsd"
    Objekt "Wand"
        Fläche
            Rechteck 100 100 200 200
        Links
            SetzeMerker DORT
