// What Jump shows. The view is built once; from then on sprites and sparks are cut into it and out of it, and a
// step of the view shifts it and fills the strip that comes in.
#pragma once

#include "games/jump/jumpspiel.h"
#include "platform/machine/files.h"
#include "platform/window/surface.h"

namespace zentrox {

class Jumpbild {
public:
    // `feld` is the surface of the game and must outlive it.
    explicit Jumpbild(Surface& feld) : Feld(feld) {}

    // Loads the 52 pictures of the atlas from a directory. Throws `DataError` at the first one that is missing or
    // damaged. One of another size than expected covers its neighbours or leaves a hole.
    void Grafikladen(const Files& dateien, TextView pfad);

    // Builds the whole view, which snaps to a column.
    void Hintergrundaufbau(Jumpspiel& spiel);

    // A tick: off, then the game's own step, then the view and all that stands in it.
    void Entfernen(const Jumpspiel& spiel);
    void Zeichnen(Jumpspiel& spiel, const Jumptick& tick);

    // One step of the view, with no sprite on the surface.
    void Scrollen(const Karte& karte, const Scrollschritt& schritt);

    const Bitmap& Atlas() const { return Picture1; }

private:
    void laden(const Files& dateien, TextView pfad, const Text& name, Point ort);
    void gegnerLaden(const Files& dateien, TextView pfad, int typ);
    void nachLinks(const Karte& karte, int a, int x);
    void nachRechts(const Karte& karte, int d, int x);
    void streifen(const Karte& karte, int spalte, int x, const Rect& ziel);
    void sichern(Point von, const Rect& zelle);
    void ausschneiden(const Rect& bild, int maskenY, Point ort);
    void spielerZeichnen(const Jumpspiel& spiel);
    void gegnerZeichnen(const Gegner& g, const Jumpspiel& spiel);

    Surface& Feld;
    Bitmap Picture1;                  // the atlas
    Bitmap Picture2{Size{292, 164}};  // what lies under the sprites
};

}  // namespace zentrox
