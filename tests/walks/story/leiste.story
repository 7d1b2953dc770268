// The bar: its height, its edge, and what happens while it slides.
Raum "Leiste.lsd"
    Bild "red.bmp"
    Objekt "Wand"
        Fläche
            Rechteck 0 0 640 400
        Links
            SetzeMerker GEKLICKT
            Text "Wand"
        Rechts
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
            NimmGegenstand "lime.bmp"
