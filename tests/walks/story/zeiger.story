// The pointer over everything that a room can hold.
Raum "Zeiger.lsd"
    Bild "red.bmp"
    Start
        NimmGegenstand "lime.bmp"
        NimmGegenstand "blue.bmp"
    Objekt "Reihe"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 100 100 200 200
        Ablegen
            SetzeMerker ABGELEGT
    Objekt "Einzel"
        Zeiger "Ordner\BLATT.ICO"
        Fläche
            Rechteck 200 100 300 200
    Objekt "Ohne"
        Fläche
            Rechteck 300 100 400 200
    Objekt "Fehlt"
        Zeiger "fehlt.ico"
        Fläche
            Rechteck 400 100 500 200
    Objekt "Ordner"
        Zeiger "..\"
        Fläche
            Rechteck 500 100 600 200
    Objekt "Rede"
        Fläche
            Rechteck 0 0 20 20
        Links
            Text "eins"
            Auswahl "Wahl?"
            Fall "a"
            EndeAuswahl
            SetzeMerker ENDE
