// The fight, once without and once with the potion.

Raum "Fight.lsd"
    Objekt "Spiel"
        Fläche
            Rechteck 0 0 320 480
        Links
            Spiel PRÜGEL SIEG
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
    Objekt "Trank"
        Fläche
            Rechteck 320 0 640 480
        Links
            Spiel PRÜGEL SIEG zaubertrank
            WennMerker SIEG
                Text "Gewonnen."
            Sonst
                Text "Verloren."
            EndeWenn
