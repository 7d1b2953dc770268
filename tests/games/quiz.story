// A click plays and says how it ended. The value is no outcome of the game.

Raum "Quiz.lsd"
    Objekt "Spiel"
        Fläche
            Rechteck 0 0 640 480
        Links
            Spiel HDW SIEG 1
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
