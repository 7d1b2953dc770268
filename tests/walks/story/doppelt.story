// A choice in which a count-down opens another one, and one that ticks in a choice without a word.
Raum "Doppelt.lsd"
    Bild "red.bmp"
    Start
        CountDownSetzen 0.6
        Auswahl "Außen?"
        Fall "eins"
            SetzeMerker EINS
        Fall "zwei"
            SetzeMerker ZWEI
        Fall "drei"
            SetzeMerker DREI
        Fall "vier"
            SetzeMerker VIER
        EndeAuswahl
        SetzeMerker ENDE
    Countdown
        BöseÄndern 1
        WennMerker INNEN
            CountDownSetzen 0
        Sonst
            SetzeMerker INNEN
            Auswahl "Innen?"
            Fall "ja"
                SetzeMerker JA
            EndeAuswahl
        EndeWenn
