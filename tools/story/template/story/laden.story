// Ihn öffnet das Menü mit "Altes Spiel laden"; wer keines wählt, kehrt dorthin zurück.
Raum "Laden.lsd"
    Start
        System Open
        System Ende
