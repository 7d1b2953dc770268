// Rooms that do nothing but start a game; `GEWONNEN` is set before, so that a lost game is seen to clear it.
Raum "Jump.lsd"
    Start
        SetzeMerker GEWONNEN
        Spiel JUMP, GEWONNEN
Raum "Bruhks.lsd"
    Start
        SetzeMerker GEWONNEN
        Spiel BRUHKS, GEWONNEN
