// Every mini-game in one room, for walks that only want to know how it ends.
Raum "Entschieden.lsd"
    Objekt "PONG"
        Fläche
            Rechteck 0 0 80 480
        Links
            Spiel PONG SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "MEMORY"
        Fläche
            Rechteck 80 0 160 480
        Links
            Spiel MEMORY SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "PI"
        Fläche
            Rechteck 160 0 240 480
        Links
            Spiel PI SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "HDW"
        Fläche
            Rechteck 240 0 320 480
        Links
            Spiel HDW SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "ESEL"
        Fläche
            Rechteck 320 0 400 480
        Links
            Spiel ESEL SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "JUMP"
        Fläche
            Rechteck 400 0 480 480
        Links
            Spiel JUMP SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "BRUHKS"
        Fläche
            Rechteck 480 0 560 480
        Links
            Spiel BRUHKS SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "PRÜGEL"
        Fläche
            Rechteck 560 0 640 480
        Links
            Spiel PRÜGEL SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
