// Keys: what each one does, and what it does not do during a script.
Raum "Tasten.lsd"
    Bild "red.bmp"
    Start
        SetzeMerker BEREIT
    Objekt "Wand"
        Fläche
            Rechteck 0 0 100 100
        Links
            Text "eins"
            Text "zwei"
            Text "drei"
            BöseÄndern 7
            SetzeMerker FERTIG
