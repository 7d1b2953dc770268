// Sound: what is heard, when it ends, and what cuts it off.
Raum "Ton.lsd"
    Bild "red.bmp"
    Objekt "Rede"
        Fläche
            Rechteck 0 0 100 100
        Links
            Ton lang.wav
            Text "Hörst du?"
        Rechts
            Ton lang.wav
    Objekt "Ersatz"
        Fläche
            Rechteck 100 0 200 100
        Links
            Ton "sounds\NUR WÄV.mp3"
            Text "wav für mp3"
            Ton "Nur MP3.wav"
            Text "mp3 für wav"
        Rechts
            Ton lang.wav
            Ton "nur mp3.mp3"
    Objekt "Stille"
        Fläche
            Rechteck 200 0 300 100
        Links
            Ton fehlt.wav
            Musik fehlt.mid
            Film fehlt.mpg
            Text "nichts"
        Rechts
            Ton kaputt.wav
            Musik kaputt.mid
            Film kaputt.avi
            Text "wieder nichts"
    Objekt "Musik"
        Fläche
            Rechteck 300 0 400 100
        Links
            Musik lied.mid
        Rechts
            Musik zweites.mid
    Objekt "Ruhe"
        Fläche
            Rechteck 400 0 500 100
        Links
            Musik
    Objekt "Film"
        Fläche
            Rechteck 500 0 600 100
        Links
            Film film.mpg
            SetzeMerker GESEHEN
        Rechts
            Ton lang.wav
            Film film.mpg
