// Keys and buttons that are held on when what they were pressed for is over.
Raum "Gehalten.lsd"
    Bild "red.bmp"
    Objekt "Frage"
        Fläche
            Rechteck 0 0 20 20
        Links
            Text "eins"
            Auswahl "Frage?"
            Fall "ja"
                SetzeMerker JA
            EndeAuswahl
            Text "allein"
    Objekt "Film"
        Fläche
            Rechteck 20 0 40 20
        Links
            Text "vor dem Film"
            Film film.mpg
            SetzeMerker GESEHEN
            Text "nach dem Film"
    Objekt "Rätsel"
        Fläche
            Rechteck 40 0 60 20
        Links
            Spiel ESEL SIEG
            Text "danach"
    Objekt "Wand"
        Fläche
            Rechteck 0 100 640 480
        Links
            SetzeMerker WAND
