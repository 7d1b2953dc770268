// What the test of the real window shows.
Raum "Desktop.lsd"
    Bild "fields.bmp"
    Start
        Text "eins#$AGrüne Wörter: ÄÖÜß"
        RahmenAuf
        Text "zwei"
        System Ende
