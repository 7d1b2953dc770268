// A click plays and says how it ended. The value is no outcome of the game.

Raum "Riddle.lsd"
    Objekt "Spiel"
        Fläche
            Rechteck 0 0 640 480
        Links
            Spiel ESEL SIEG 1
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
