// What Bruhks shows: creatures that are cut into the ground and out of it again, sparks, and the text of the
// celebration.
#pragma once

#include <array>

#include "games/bruhks/bruhksspiel.h"
#include "games/sparks/funkenbild.h"
#include "platform/window/surface.h"

namespace zentrox {

class Bruhksbild {
public:
    // `feld` is the surface of the game and must outlive it. The ground is laid on it.
    explicit Bruhksbild(Surface& feld);

    Size Frame() const { return Picture1.front().size(); }
    // Where the text of the celebration stands in the middle.
    Point Textmitte() const;

    // Around a tick of the game: all that moves goes off the surface, and on again.
    void Entfernen(const Bruhksspiel& spiel);
    void Zeichnen(const Bruhksspiel& spiel);

private:
    Rect zelle(std::size_t i) const { return {{Frame().w * static_cast<int>(i), 0}, Frame()}; }
    void kreaturenZeichnen(const Bruhksspiel& spiel);
    void siegtextDrucken(const Bruhksspiel& spiel);

    Surface& Feld;
    std::array<Bitmap, 2> Picture1;  // the creature's frames
    Bitmap Picture2;                 // what lies under the creatures
    Funkenbild funken_;
};

}  // namespace zentrox
