// What the pi game shows: three screens before it, its characters, and how it ended.
#pragma once

#include "games/pi/pispiel.h"
#include "platform/window/surface.h"

namespace zentrox {

constexpr Size PIfläche{369, 273};
constexpr int PIkreisSchritt = 4;  // degrees

class PIbild {
public:
    // `picture1` has the size of `PIfläche` and must outlive it.
    explicit PIbild(Surface& picture1);

    // A word alone in the middle: the title, or a smaller announcement.
    void Titel(TextView text);
    void Ansage(TextView text);
    // A point of the circle around it, by its angle in degrees from below.
    void Kreispunkt(int winkel);

    void Frage(const Pifrage& frage);

    void Blitz();
    void Schluss(const PIspiel& spiel);

private:
    void wort(TextView text, float schrift);
    void drucken(Point ort, TextView text, Colour farbe);

    Surface& Picture1;
};

}  // namespace zentrox
