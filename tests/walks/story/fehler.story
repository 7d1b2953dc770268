// Each door leads to data that can't be used.
Raum "Fehler_bild.lsd"
    Bild "fehlt.bmp"
Raum "Fehler_kaputt.lsd"
    Bild "kaputt.bmp"
Raum "Fehler_zeiger.lsd"
    Bild "red.bmp"
    Objekt "Ding"
        Zeiger "kaputt.ico"
        Fläche
            Rechteck 0 0 640 480
Raum "Fehler_raum.lsd"
    Start
        Raumwechsel "Gibt es nicht.lsd"
Raum "Fehler_feld.lsd"
    Start
        Raumwechsel "Kaputt.lsd"
Raum "Fehler_leer.lsd"
    Start
        Raumwechsel "Leer.lsd"
Raum "Fehler_kreis.lsd"
    Start
        Raumwechsel "Kreis2.lsd"
Raum "Kreis2.lsd"
    Start
        Raumwechsel "Fehler_kreis.lsd"
