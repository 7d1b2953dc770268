Raum "Fenster.lsd"
    Bild "red.bmp"
    Start
        Text "Hallo#$AGrün##$4Rot"
