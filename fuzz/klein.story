// A seed: small, with something of everything.
Raum "Klein.lsd"
    Bild "klein.jpg"
    Start
        Marke ANFANG
        WennMerker A
            Text "eins" "$Czwei"
        Sonst
            SetzeMerker A
            Springe ANFANG
        EndeWenn
        CountDownSetzen 0.5
        System Save
        Roh 77 "x"
        Roh ZoomIN "1, 2"
    Countdown
        Portrait links "a.jpg"
        Blende weiß
    Objekt "Tür"
        Zeiger "a1.ico"
        Inaktiv
        Fläche Rechteck 10 10 50 90
        Vieleck 100 100, 200 100, 150 300
        Rechts Aus
            ObjektAn "Tür"
        Links
            Auswahl "Frage"
                Fall 2 "b"
                    SetzeZeiger "Tür" "b.ico"
                Fall 1 "a"
                    Raumwechsel "Klein.lsd"
                Option "c"
            EndeAuswahl
        Ablegen
Gegenstand "ring.bmp"
    Links
        Spiel PONG A
        ZoomOUT 1 2 3 4
        BöseÄndern -1
