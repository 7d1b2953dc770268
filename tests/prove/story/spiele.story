// Every kind of step on the way to an ending and into a dead end: games, answers, items, ticks, clicks at objects that
// share a name.
Raum "Start.lsd"
    Start
        Text "Los."
        Text "Los."
    Objekt "Tür"
        Fläche Rechteck 0 0 60 60
        Rechts
            Text "Eine Tür."
    Objekt "Tür"
        Fläche Rechteck 100 0 160 60
        Links
            Raumwechsel "Spiele.lsd"
    Objekt "Haken"
        Fläche Rechteck 200 0 260 60
        Links
            WennMerker HAKEN
                Text "Schon genommen."
            Sonst
                NimmGegenstand "lime.bmp"
                NimmGegenstand "blue.bmp"
                SetzeMerker HAKEN
            EndeWenn

Raum "Spiele.lsd"
    Objekt "Prüfer"
        Fläche Rechteck 0 0 60 60
        Links
            Auswahl "Was spielen wir?"
                Fall "Alles."
                    Spiel PI A
                    Spiel JUMP B
                    Spiel ESEL C
                    Spiel HDW D
                    Spiel PRÜGEL E
                    Spiel BRUHKS F
                    Spiel PONG G
                    Spiel MEMORY H
                    WennMerker A
                    WennMerker B
                    WennMerker C
                    WennMerker D
                    WennMerker E
                    WennMerker F
                    WennMerker G
                    WennMerker H
                        Raumwechsel "Uhr.lsd"
                    EndeWenn
                    EndeWenn
                    EndeWenn
                    EndeWenn
                    EndeWenn
                    EndeWenn
                    EndeWenn
                    EndeWenn
                Option "Nichts."
            EndeAuswahl
    Objekt "Flur"
        Fläche Rechteck 100 0 160 60
        Links
            Raumwechsel "Start.lsd"

Raum "Uhr.lsd"
    Start
        WennMerker UHR
            Text "Die Uhr steht."
        Sonst
            SetzeMerker UHR
            CountDownSetzen 3
        EndeWenn
    Countdown
        WennMerker TICK
            CountDownSetzen 0
            SetzeMerker ZUSPÄT
            Text "Dong."
        Sonst
            SetzeMerker TICK
            Text "Tick."
        EndeWenn
    Objekt "Loch"
        Fläche Rechteck 0 0 60 60
        Ablegen
            WennParameter YELLOW
                WennMerker TICK
                    WennMerker ZUSPÄT
                        Text "Zu."
                    Sonst
                        // ende: gut
                        System Raus
                    EndeWenn
                EndeWenn
            EndeWenn

Gegenstand "blue.bmp"
    Ablegen
        WennParameter LIME
            GibGegenstand "lime.bmp"
            GibGegenstand "blue.bmp"
            NimmGegenstand "red.bmp"
        EndeWenn

Gegenstand "red.bmp"
    Links
        GibGegenstand "red.bmp"
        NimmGegenstand "yellow.bmp"
        Text "Gelb!"
