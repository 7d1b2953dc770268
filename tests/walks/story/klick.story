// Who takes a click: overlapping, inactive and half-scripted objects.
Raum "Klick.lsd"
    Bild "red.bmp"
    Objekt "Oben"
        Fläche
            Rechteck 100 100 200 200
        Links
            SetzeMerker OBEN
        Rechts
            SetzeMerker OBEN_RECHTS
    Objekt "Unten"
        Fläche
            Rechteck 150 150 300 300
        Links
            SetzeMerker UNTEN
    Objekt "Schläfer"
        Inaktiv
        Fläche
            Rechteck 400 100 500 200
        Links
            SetzeMerker SCHLÄFER
    Objekt "Darunter"
        Zeiger "blatt.ico"
        Fläche
            Rechteck 400 100 500 200
        Links
            SetzeMerker DARUNTER
    Objekt "Schalter"
        Fläche
            Rechteck 0 0 20 20
        Links
            ObjektAn "Schläfer"
            SetzeZeiger "schläfer" "werfen.ico"
        Rechts
            ObjektAus "Schläfer"
            Roh ObjektAn " Oben"
    Objekt "Tür"
        Fläche
            Rechteck 600 0 640 20
        Links
            Raumwechsel "Klick.lsd"
            SetzeMerker DANACH
