// A loop without a wait never ends.
Raum "Schleife.lsd"
    Bild "red.bmp"
    Objekt "Kreis"
        Fläche
            Rechteck 0 0 20 20
        Links
            Marke RUND
            SetzeMerker M
            Springe RUND
