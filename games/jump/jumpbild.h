// What Jump shows. The view is built once; from then on sprites and sparks are cut into it and out of it, and a
// step of the view shifts it and fills the strip that comes in.
#pragma once

#include "games/jump/jumpspiel.h"
#include "games/sparks/funkenbild.h"
#include "platform/machine/files.h"
#include "platform/window/surface.h"

namespace zentrox {

// The atlas: 52 pictures of a directory in one. Throws `DataError` at the first one that is missing or damaged. One
// of another size than expected covers its neighbours or leaves a hole.
Bitmap Grafikladen(const Files& dateien, TextView pfad);

class Jumpbild {
public:
    // `feld` is the surface of the game and must outlive it.
    Jumpbild(Surface& feld, Bitmap atlas) : Feld(feld), Picture1(std::move(atlas)), funken_(feld) {}

    // Builds the whole view, which stands at the border of a column.
    void Hintergrundaufbau(const Jumpspiel& spiel);

    // Around a tick of the game: all that moves goes off the surface; then the view moves, and all goes on again.
    void Entfernen(const Jumpspiel& spiel);
    void Zeichnen(const Jumpspiel& spiel, const Jumptick& tick);

    // One step of the view, with no sprite on the surface.
    void Scrollen(const Karte& karte, const Scrollschritt& schritt);

    const Bitmap& Atlas() const { return Picture1; }

private:
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
    Funkenbild funken_;
};

}  // namespace zentrox
