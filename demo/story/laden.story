// The room behind "Altes Spiel laden": a locker full of games begun.

Raum "Laden.lsd"
    Bild "laden.jpg"
    Start
        Marke SUCHEN
        System Open
        Auswahl "Mein Spind. Hier liegt alles, was ich einmal angefangen habe."
            Fall "Noch einmal suchen."
                Springe SUCHEN
            Fall "Ganz von vorn beginnen."
                Blende weiß
                Raumwechsel "Start.lsd"
            Fall "Zurück ins Menü."
                System Ende
        EndeAuswahl
