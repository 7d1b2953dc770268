// Choices: lines of several rows, choices in choices, options without a case.
Raum "Auswahl.lsd"
    Bild "red.bmp"
    Start
        Auswahl "Frage?"
        Fall "eins"
            SetzeMerker EINS
        Fall "zwei" "und noch eine Zeile"
            Auswahl "Innen?"
            Fall "a"
                SetzeMerker INNEN_A
            Fall "b"
                SetzeMerker INNEN_B
            EndeAuswahl
            SetzeMerker NACH_INNEN
        Option "drei"
        EndeAuswahl
        SetzeMerker ENDE
