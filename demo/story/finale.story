// The evening. What the disc plays depends on how one came by it.

Raum "Finale.lsd"
    Bild "finale.jpg"
    Start
        Musik "finale.mid"
        WennMerker BÖSE
            ZeigBild "finale_boese.jpg"
            Blende zurück
            Orlix: "Liebe Gäste, kurzum: die Kursus-CD!"
            Ton "gong.wav"
            Text "DING DONG. DING DONG. DING DONG."
            Zentrox: "HIER SPRICHT ZENTROX. AUF DIESER CD SIND VIERUNDSIEBZIG MINUTEN SCHULGONG."
                     "FÜR VELMAR, DER ES EILIG HATTE."
            Grobbel: "Hör mal, Junge: Pause. Immer nur Pause."
            Kessa: "Das ist die beste CD, die wir je hatten!"
            Text "Alle lachen. Dann tanzen sie. Man kann auf einen Schulgong tanzen."
            Velmix: "Und ich? Ich fege. Den Eimer reicht mir Herr Grobbel."
            Balduin: "Wer zieht, der fegt. Ein altes Gesetz."
        Sonst
            Blende zurück
            Orlix: "Liebe Gäste, kurzum: die Kursus-CD!"
            Text "Es knackt. Es summt. Die Leinwand wird grün."
            Zentrox: "GUTEN ABEND, JAHRGANG 2002. HIER SPRICHT ZENTROX."
                     "ICH BIN JETZT AUF EURER CD. UNTER »SONSTIGES«. BITTE LAUT STELLEN."
            Tirsa: "Er hat Musik dabei. Von 1974. Sie ist gut."
            Brokan: "Darf ich jetzt auch tanzen? Ich bin auch vorsichtig."
            Ampulla: "Und niemand hat etwas angezündet! Der Abend ist noch jung!"
            Text "Frau Orlix senkt zum ersten Mal seit 1987 den Zeigefinger."
                 "Sie braucht ihn zum Schnippen."
            Velmix: "Achtundzwanzig Jahrgänge sind gegangen."
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
