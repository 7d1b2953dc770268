// The rules of Bruhks, a plain value: 21 creatures glide in soft curves, a click bursts one. Positions are pixels
// of the surface, durations ticks.
#pragma once

#include <array>
#include <cstdint>

#include "games/sparks/funken.h"
#include "platform/values/geometry.h"
#include "platform/values/random.h"

namespace zentrox {

struct Kreatur {
    bool Lebt = true;  // not yet hit
    float StartX = 0;  // where the present journey of the axis began
    float StartY = 0;
    std::int32_t RestX = 0;  // ticks left of it
    std::int32_t RestY = 0;
    std::int32_t DauerX = 0;  // its whole length
    std::int32_t DauerY = 0;
    float PosX = 0;  // top left corner now
    float PosY = 0;
    float ZielX = 0;  // where the journey ends
    float ZielY = 0;
    std::int32_t Frame = 0;  // 0 or 1
    std::int32_t FrameZeit = 0;
};

constexpr int KreaturAnzahl = 21;
constexpr int Jagdsekunden = 20;
constexpr int TextspurLänge = 64;
constexpr int linkeTaste = 1;

class Bruhksspiel {
public:
    // All creatures take their places. `feld` and `frame` are the sizes of the surface and of a creature.
    Bruhksspiel(Random& zufall, float PI, Size feld, Size frame);

    // A mouse button went down; the next tick reads it.
    void Klick(std::int16_t taste, float x, float y);
    // A second has passed.
    void Sekunde();

    bool Jagd() const { return Ende == 0 && Uebrig > 0; }
    // The hunt is won: the celebration begins with its text at `mitte`.
    void SiegBeginn(Point mitte);
    // Ends the hunt as won or lost. False if it is over.
    bool Entscheiden(bool sieg);
    // One tick of the hunt or of the celebration. It is silent, and all that it does can be seen in the fields.
    void Tick(Random& zufall);

    std::array<Kreatur, KreaturAnzahl> Kreaturen;
    zentrox::Funken Funken;
    std::int32_t Uebrig = KreaturAnzahl;
    std::int32_t Sekunden = 0;
    std::int32_t Ende = 0;  // not 0 ends the game
    bool Sieg = false;
    bool ErsterTick = true;
    std::int16_t KlickTaste = 0;  // 0 when there is none
    float KlickX = 0;
    float KlickY = 0;
    std::array<Point, TextspurLänge> Textspur{};  // the newest last

private:
    void jagdTick(Random& zufall);
    void siegTick(Random& zufall);
    void text();
    void treffer(Kreatur& k, Random& zufall);
    bool getroffen(const Kreatur& k) const;
    void gleiten(Kreatur& k, Random& zufall) const;
    struct Achse;
    void reisen(const Achse& achse, int spielraum, Random& zufall) const;
    int spielraumX() const { return feld_.w - frame_.w; }
    int spielraumY() const { return feld_.h - frame_.h; }

    float PI_;
    Size feld_;
    Size frame_;
    Point mitte_;
    float winkel_ = 0;
};

}  // namespace zentrox
