// The evening. What the disc plays depends on how one came by it.

Raum "Finale.lsd"
    Bild "finale.jpg"
    Start
        Musik "finale.mid"
        WennMerker BÖSE
            ZeigBild "finale_boese.jpg"
            Blende zurück
            Ton "orlix-finale-01.wav"
            Text "$DLiebe Gäste, kurzum: die Kursus-CD!"
            Ton "gong.wav"
            Text "DING DONG. DING DONG. DING DONG."
            Ton "zentrox-finale-01.wav"
            Text "$AHIER SPRICHT ZENTROX. AUF DIESER CD SIND VIERUNDSIEBZIG MINUTEN SCHULGONG."
                 "$AFÜR VELMAR, DER ES EILIG HATTE."
            Ton "grobbel-finale-01.wav"
            Text "$BHör mal, Junge: Pause. Immer nur Pause."
            Ton "kessa-finale-01.wav"
            Text "$CDas ist die beste CD, die wir je hatten!"
            Text "Alle lachen. Dann tanzen sie. Man kann auf einen Schulgong tanzen."
            Ton "velmix-finale-01.wav"
            Text "Und ich? Ich fege. Den Eimer reicht mir Herr Grobbel."
            Ton "balduin-finale-01.wav"
            Text "$7Wer zieht, der fegt. Ein altes Gesetz."
        Sonst
            Blende zurück
            Ton "orlix-finale-02.wav"
            Text "$DLiebe Gäste, kurzum: die Kursus-CD!"
            Text "Es knackt. Es summt. Die Leinwand wird grün."
            Ton "zentrox-finale-02.wav"
            Text "$AGUTEN ABEND, JAHRGANG 2002. HIER SPRICHT ZENTROX."
                 "$AICH BIN JETZT AUF EURER CD. UNTER »SONSTIGES«. BITTE LAUT STELLEN."
            Ton "tirsa-finale-01.wav"
            Text "$EEr hat Musik dabei. Von 1974. Sie ist gut."
            Ton "brokan-finale-01.wav"
            Text "$ADarf ich jetzt auch tanzen? Ich bin auch vorsichtig."
            Ton "ampulla-finale-01.wav"
            Text "$7Und niemand hat etwas angezündet! Der Abend ist noch jung!"
            Text "Frau Orlix senkt zum ersten Mal seit 1987 den Zeigefinger."
                 "Sie braucht ihn zum Schnippen."
            Ton "velmix-finale-02.wav"
            Text "Achtundzwanzig Jahrgänge sind gegangen."
                 "Der neunundzwanzigste hat jemanden mitgenommen."
        EndeWenn
        Blende weiß
        Raumwechsel "Abspann.lsd"

Raum "Abspann.lsd"
    Bild "nacht.jpg"
    Start
        Blende zurück
        System Abspann
        System Ende
