// A room with a field for each game, four in a row, and a third row of what opens boxes.
Raum "Spiele.lsd"
    Bild "saal.bmp"
    Start
        SetzeMerker BEREIT
    Objekt "Pong"
        Fläche
            Rechteck 0 0 159 159
        Links
            Spiel PONG OK
    Objekt "Rätsel"
        Fläche
            Rechteck 160 0 319 159
        Links
            Spiel ESEL OK
    Objekt "Pi"
        Fläche
            Rechteck 320 0 479 159
        Links
            Spiel PI OK
    Objekt "Quiz"
        Fläche
            Rechteck 480 0 639 159
        Links
            Spiel HDW OK
    Objekt "Memory"
        Fläche
            Rechteck 0 160 159 319
        Links
            Spiel MEMORY OK
    Objekt "Jump"
        Fläche
            Rechteck 160 160 319 319
        Links
            Spiel JUMP OK
    Objekt "Bruhks"
        Fläche
            Rechteck 320 160 479 319
        Links
            Spiel BRUHKS OK
    Objekt "Kampf"
        Fläche
            Rechteck 480 160 639 319
        Links
            Spiel PRÜGEL OK
    Objekt "Text"
        Fläche
            Rechteck 0 320 159 479
        Links
            Text "Ein Text."
    Objekt "Schleife"
        Fläche
            Rechteck 160 320 319 479
        Links
            Marke A
            Springe A
    Objekt "Film"
        Fläche
            Rechteck 320 320 479 479
        Links
            Film ewig.mpg
    Objekt "Ende"
        Fläche
            Rechteck 480 320 639 479
        Links
            System Ende
