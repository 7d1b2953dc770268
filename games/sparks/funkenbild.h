// Sparks on a surface, pixel by pixel, without drawing anything else anew.
#pragma once

#include <vector>

#include "games/sparks/funken.h"
#include "platform/window/surface.h"

namespace zentrox {

class Funkenbild {
public:
    // `feld` must outlive it.
    explicit Funkenbild(Surface& feld) : Feld(feld) {}

    // Draws all sparks, each over what was drawn before it, and keeps what it covers.
    void Zeichnen(const Funken& funken);
    // Gives back what they cover. The last one drawn goes first, so that overlapping sparks leave what was there
    // before all of them.
    void Entfernen();

private:
    struct Bildpunkt {
        Point ort;
        Colour farbe;
    };

    Surface& Feld;
    std::vector<Bildpunkt> Untergrund;
};

}  // namespace zentrox
