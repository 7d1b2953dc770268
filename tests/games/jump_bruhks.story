// Rooms that do nothing but start a game; `GEWONNEN` is set before, so that a lost game is seen to clear it; the
// value is no outcome of Jump.
Raum "Jump.lsd"
    Start
        SetzeMerker GEWONNEN
        Spiel JUMP, GEWONNEN, 1
Raum "Bruhks.lsd"
    Start
        SetzeMerker GEWONNEN
        Spiel BRUHKS, GEWONNEN
