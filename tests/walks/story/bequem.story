// For what a player may ask for beside the game: rooms and flags to be saved, talk to be read again, a count-down.
Raum "Bequem.lsd"
    Bild "red.bmp"
    Start
        SetzeMerker DA
    Objekt "Rede"
        Fläche
            Rechteck 0 0 10 20
        Links
            SetzeMerker GEREDET
            Ton "lang.wav"
            Text "$EErste Rede."
            Ton "lang.wav"
            Text "$AZweite Rede,#$Adie zwei Zeilen hat."
            SetzeMerker FERTIG
    Objekt "Frage"
        Fläche
            Rechteck 10 0 20 20
        Links
            Auswahl "Wie nun?"
            Fall "So"
                SetzeMerker SO
            Fall "Anders"
                SetzeMerker ANDERS
            EndeAuswahl
            Text "Gut."
    Objekt "Tür"
        Fläche
            Rechteck 20 0 30 20
        Links
            Raumwechsel "Hinten.lsd"
    Objekt "Uhr"
        Fläche
            Rechteck 30 0 40 20
        Links
            SetzeMerker UHR
            CountDownSetzen 500
    Objekt "Ding"
        Fläche
            Rechteck 40 0 50 20
        Links
            NimmGegenstand "blue.bmp"

Raum "Hinten.lsd"
    Bild "blue.bmp"
    Start
    Objekt "Zurück"
        Fläche
            Rechteck 0 0 10 20
        Links
            SetzeMerker ZURÜCK
            Raumwechsel "Bequem.lsd"
    Objekt "_Wand"
        Fläche
            Rechteck 20 0 30 20
        Links
            SetzeMerker WAND
    Objekt "Lang"
        Fläche
            Rechteck 40 0 50 20
        Links
            Text "Ein Satz, der so noch in eine Zeile passt."

Raum "Farben.lsd"
    Bild "red.bmp"
    Start
    Objekt "Alle"
        Fläche
            Rechteck 0 0 10 20
        Links
            Text "$0Schwarz#$1Dunkelblau#$4Dunkelrot#$5Lila#$9Blau#$CRot#$8Grau#$EGelb"
    Objekt "Frage"
        Fläche
            Rechteck 10 0 20 20
        Links
            Auswahl "$1Wie nun?"
            Fall "$9So"
                SetzeMerker SO
            Fall "$EAnders"
                SetzeMerker ANDERS
            EndeAuswahl
