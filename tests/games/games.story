// One room for each mini-game: a click on the only thing in it plays, and says how it ended.

Raum "Pong.lsd"
    Objekt "Spiel"
        Fläche
            Rechteck 0 0 640 480
        Links
            Spiel PONG SIEG 1
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn

Raum "Memory.lsd"
    Objekt "Spiel"
        Fläche
            Rechteck 0 0 640 480
        Links
            Spiel MEMORY SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn

Raum "Pi.lsd"
    Objekt "Spiel"
        Fläche
            Rechteck 0 0 640 480
        Links
            Spiel PI SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
