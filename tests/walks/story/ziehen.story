// Items: clicked, dragged, dropped, combined.
Raum "Ziehen.lsd"
    Bild "red.bmp"
    Start
        NimmGegenstand "lime.bmp"
        NimmGegenstand "blue.bmp"
        NimmGegenstand "yellow.bmp"
    Objekt "Kiste"
        Fläche
            Rechteck 100 100 200 200
        Ablegen
            WennParameter " lime "
                SetzeMerker KISTE_LIME
                GibGegenstand "ordner\LIME.bmp"
            Sonst
                SetzeMerker KISTE_ANDERES
            EndeWenn
    Objekt "Stumm"
        Fläche
            Rechteck 300 100 400 200
        Links
            SetzeMerker STUMM

Gegenstand "lime.bmp"
    Links
        SetzeMerker LIME_BENUTZT
    Ablegen
        WennParameter BLUE
            SetzeMerker BLAU_AUF_LIME
        EndeWenn

Gegenstand "yellow.bmp"
    Rechts
        SetzeMerker GELB_BESEHEN
    Ablegen
