// A count-down that fires during a text, during a slide of the bar and after a room change.
Raum "Countdown.lsd"
    Bild "red.bmp"
    Start
        CountDownSetzen 1
        Text "eins"
        SetzeMerker DANACH
    Countdown
        BöseÄndern 1
    Objekt "Aus"
        Fläche
            Rechteck 0 0 20 20
        Links
            CountDownSetzen 0
    Objekt "An"
        Fläche
            Rechteck 20 0 40 20
        Links
            CountDownSetzen 0.2
    Objekt "Tür"
        Fläche
            Rechteck 40 0 60 20
        Links
            Raumwechsel "Still.lsd"

Raum "Still.lsd"
    Bild "blue.bmp"
    Countdown
        BöseÄndern 100
