// What walks read, answer by words, and set up without a player.
Raum "Lesen.lsd"
    Bild "red.bmp"
    Start
        Text "Eins." "Noch eins."
        Text "$2Zwei."
        Text "Drei."
    Objekt "Kiste"
        Fläche
            Rechteck 100 100 200 200
        Links
            Blende weiß
            Text "Was jetzt?"
            Auswahl "Wohin?"
            Fall "$3In den Keller"
                SetzeMerker KELLER
            Fall "In den Keller und zurück"
                SetzeMerker ZURÜCK
            EndeAuswahl
            Blende zurück
            Text "Getan."
        Ablegen
            WennParameter LIME
                SetzeMerker LIME_DA
            EndeWenn
Raum "Lesen2.lsd"
    Bild "blue.bmp"
    Start
        Text "Im Keller."
        WennMerker GESETZT
            Text "Gesetzt."
        EndeWenn
