// A count-down that ticks during a film.
Raum "Filmuhr.lsd"
    Bild "red.bmp"
    Objekt "Film"
        Fläche
            Rechteck 0 0 20 20
        Links
            CountDownSetzen 0.3
            Film film.mpg
            SetzeMerker GESEHEN
    Countdown
        CountDownSetzen 0
        Portrait links "lime.bmp"
