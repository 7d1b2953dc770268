// Eine Stube, eine Tür, ein Schlüssel: der Anfang einer Geschichte.
// Übersetzen:  zentrox-story build story --into .
// Spielen:     zentrox --dir .

Raum "Start.lsd"
    Bild "stube.bmp"

    Start
        WennMerker SCHLÜSSEL_GENOMMEN
            ZeigBild "stube_ohne_schluessel.bmp"
        EndeWenn
        WennMerker nicht BEGRÜSST
            SetzeMerker BEGRÜSST
            Text "Eine stille Stube."
                 "Die Tür ist zu."
        EndeWenn

    Objekt "Schlüssel" einsteckbar SCHLÜSSEL Merker SCHLÜSSEL_GENOMMEN
        Zeiger "hand1.ico"
        Fläche
            Rechteck 380 270 460 310
        Rechts
            Text "Ein Schlüssel."
                 "Er sieht aus, als passte er zur Tür."
        Links
            ZeigBild "stube_ohne_schluessel.bmp"

    Objekt "Tür"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 100 120 220 400
        Rechts
            Text "Eine Tür aus Eichenholz."
        Links
            WennMerker TÜR_OFFEN
                Frage "Die Tür steht offen. Gehst du hinaus?"
                    Schluss "Ja."
                        Text "$EHier beginnt deine Geschichte."
                        System Ende
                    Schluss "Noch nicht."
                        Text "Drinnen ist es auch schön."
                EndeFrage
            Sonst
                Text "Sie ist abgeschlossen."
            EndeWenn
        Ablegen
            Bei SCHLÜSSEL
                GibGegenstand SCHLÜSSEL
                SetzeMerker TÜR_OFFEN
                Text "Der Schlüssel dreht sich."
                     "Die Tür ist offen."
            Sonst
                Text "Damit geht sie nicht auf."

Gegenstand "schluessel.bmp" heißt SCHLÜSSEL
    Rechts
        Text "Er ist klein und aus Messing."
    Links
        Text "Womit soll ich ihn benutzen?"
