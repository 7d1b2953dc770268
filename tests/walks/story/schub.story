// What comes while the bar slides.
Raum "Schub.lsd"
    Bild "red.bmp"
    Start
        NimmGegenstand "lime.bmp"
    Countdown
        Raumwechsel "Nebenan.lsd"
    Objekt "Wand"
        Fläche
            Rechteck 0 100 640 300
        Links
            SetzeMerker LINKS
        Ablegen
            SetzeMerker ABGELEGT
    Objekt "Boden"
        Fläche
            Rechteck 0 420 640 480
        Links
            SetzeMerker BODEN
        Rechts
            SetzeMerker BODEN_RECHTS
    Objekt "Uhr"
        Fläche
            Rechteck 0 0 20 20
        Links
            CountDownSetzen 0.1
        Rechts
            SetzeMerker UHR
            Text "Uhr"

Raum "Nebenan.lsd"
    Bild "blue.bmp"
    Start
        NimmGegenstand "lime.bmp"
    Countdown
        CountDownSetzen 0
        Text "Zeit"
    Objekt "Wand"
        Fläche
            Rechteck 0 100 640 300
        Links
            SetzeMerker NEBENAN
    Objekt "Uhr"
        Fläche
            Rechteck 0 0 20 20
        Links
            CountDownSetzen 1.5
