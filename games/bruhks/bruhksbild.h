// What Bruhks shows: creatures that are cut into the ground and out of it again, sparks, and the text of the
// celebration.
#pragma once

#include <array>

#include "games/bruhks/bruhksspiel.h"
#include "platform/window/surface.h"

namespace zentrox {

class Bruhksbild {
public:
    // `feld` is the surface of the game, its ground on it, and must outlive it.
    explicit Bruhksbild(Surface& feld);

    Size Frame() const { return Picture1.front().size(); }
    // Where the text of the celebration stands in the middle.
    Point Textmitte() const;

    // A tick of the hunt: off, then the game's own step, then on.
    void Entfernen(const Bruhksspiel& spiel);
    void Zeichnen(Bruhksspiel& spiel);
    // Of the celebration: sparks off, text, and sparks on.
    void FunkenEntfernen(const Bruhksspiel& spiel);
    void Siegtext(const Bruhksspiel& spiel);
    void FunkenZeichnen(Bruhksspiel& spiel);

private:
    Rect zelle(std::size_t i) const { return {{Frame().w * static_cast<int>(i), 0}, Frame()}; }

    Surface& Feld;
    std::array<Bitmap, 2> Picture1;  // the creature's frames
    Bitmap Picture2;                 // what lies under the creatures
};

}  // namespace zentrox
