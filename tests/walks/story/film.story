// A room that begins with a film.
Raum "Film.lsd"
    Bild "red.bmp"
    Start
        Film film.mpg
        SetzeMerker GESEHEN
        Text "Ende."
