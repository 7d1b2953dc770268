// The picture commands, with colours that tell what stands where.
Raum "Bild.lsd"
    Einbinden "bild.teil"
Raum "Zoom.lsd"
    Einbinden "bild.teil"
Raum "Rahmen.lsd"
    Einbinden "bild.teil"
