// The level of Jump: tiles of 48 by 48 pixels, and who walks on them at the start.
#pragma once

#include <array>
#include <cstdint>

namespace zentrox {

constexpr int Kachel = 48;         // pixels a side
constexpr int Levelspalten = 174;  // columns with something in them
constexpr int Levelzeilen = 9;
constexpr int letzteBildkachel = 9;  // tiles above it are solid

// The tile values, from 0, where the background shows, to 11.
class Karte {
public:
    Karte();
    // Column and row from 0, left and top; 0 outside of the level.
    std::int32_t at(int spalte, int zeile) const {
        if (spalte < 0 || spalte >= Levelspalten || zeile < 0 || zeile >= Levelzeilen) return 0;
        return kacheln_[static_cast<std::size_t>(zeile)][static_cast<std::size_t>(spalte)];
    }
    bool fest(int spalte, int zeile) const { return at(spalte, zeile) > letzteBildkachel; }

private:
    std::array<std::array<std::int32_t, Levelspalten>, Levelzeilen> kacheln_{};
};

enum class Gangart {
    geht,           // walks until something blocks it
    sinkt,          // sinks and rises in place
    patrouilliert,  // walks between two x
};

// One kind of enemy.
struct GegnerTyp {
    std::int32_t Breite;
    std::int32_t Hoehe;
    std::int32_t LetztesBild;  // index of the last frame
    std::int32_t BildTicks;    // ticks a frame
    float Tempo;               // pixels a tick
    std::int32_t TrittHoehe;   // depth below its top in which a foot stomps it
    zentrox::Gangart Gangart;
    std::int32_t AtlasY;  // of its frames; the masks lie directly below

    // What is added to x in the atlas for the mirrored frames, which look to the right.
    std::int32_t Spiegelung() const { return (LetztesBild + 1) * Breite; }
};

constexpr std::array<GegnerTyp, 4> GegnerTypen{{
    // Breite Hoehe LetztesBild BildTicks Tempo TrittHoehe Gangart AtlasY
    {48, 48, 1, 5, 3.0F, 18, Gangart::geht, 672},
    {48, 96, 1, 7, 0.5F, 0, Gangart::sinkt, 768},
    {48, 24, 1, 3, 5.0F, 18, Gangart::patrouilliert, 960},
    {48, 26, 1, 3, 5.0F, 18, Gangart::patrouilliert, 1008},
}};

struct Gegner {
    float VX = 0;  // its sign is the direction
    float X = 0;   // top left corner, in the level's pixels
    float Y = 0;
    float LinksGrenze = 0;  // of a patrol
    float RechtsGrenze = 0;
    std::int32_t Bild = 0;      // frame shown now
    std::int32_t BildZeit = 0;  // ticks in it
    std::int32_t Typ = 0;
    bool Lebt = true;
    std::int32_t RetteX = 0;  // where the pixels under it are kept
    std::int32_t RetteY = 0;
    std::int32_t Blick = 0;  // 0 looks left, `Spiegelung` of its type looks right
    bool Sichtbar = false;   // it was drawn in the last tick
    float Hub = 0;           // how far its top has sunk

    const GegnerTyp& Art() const { return GegnerTypen[static_cast<std::size_t>(Typ)]; }
};

using Gegnerschar = std::array<Gegner, 12>;

// All enemies as they stand at the start.
Gegnerschar Startaufstellung();

}  // namespace zentrox
