// The same room for three walks.
Raum "Grenzen.lsd"
    Einbinden "grenzen.teil"
Raum "Keine_wahl.lsd"
    Einbinden "grenzen.teil"
Raum "Zu_viele.lsd"
    Einbinden "grenzen.teil"
