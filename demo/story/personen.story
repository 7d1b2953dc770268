// Who speaks: the face in its frame, the colour of the text, and what the files of the voice begin with.

Person Velmix
    Spieler
    Portrait rechts "velmix.jpg"
    Stimme "velmix"

Person Orlix
    Portrait links "orlix.jpg"
    Farbe D
    Stimme "orlix"

Person Grobbel
    Portrait links "grobbel.jpg"
    Farbe B
    Stimme "grobbel"

Person Ampulla
    Portrait links "ampulla.jpg"
    Farbe 7
    Stimme "ampulla"

Person Kessa
    Portrait links "kessa.jpg"
    Farbe C
    Stimme "kessa"

Person Brokan
    Portrait links "brokan.jpg"
    Farbe A
    Stimme "brokan"

Person Tirsa
    Portrait links "tirsa.jpg"
    Farbe E
    Stimme "tirsa"

Person Globus
    Portrait links "globus.jpg"
    Farbe B
    Stimme "globus"

Person Balduin
    Portrait links "balduin.jpg"
    Farbe 7
    Stimme "balduin"

Person Zentrox
    Portrait links "zentrox.jpg"
    Farbe A
    Stimme "zentrox"

Person ZentroxBöse
    Portrait links "zentrox_boese.jpg"
    Farbe A
    Stimme "zentrox"

Person ZentroxRuhig
    Portrait links "zentrox_ruhig.jpg"
    Farbe A
    Stimme "zentrox"
