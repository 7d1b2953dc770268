#include "games/jump/level.h"

#include "platform/values/text.h"

namespace zentrox {

namespace {

// One character a tile, the value as a hexadecimal digit; the rows from top to bottom. The last one is the ground.
constexpr std::array<TextView, Levelzeilen> level{
    "000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
    "00000000000000000000000000000000000006666a000000000000000000000000000000000000000000000",
    "000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
    "00000000000000000000000000000000000066666a000000000000000000000000000000000000000000000",
    "00000000000000000000000000000000000000000000000000000000000000bbbb000000000000000000000"
    "0000000000000000000000000000000000bbbbb66a000000000000000000000000000000000000000000000",
    "00000000000000000000000000000000000000000000100b0000000000000baaaa000000000000000000000"
    "000000000000000000000000000000000b6666666a000000000000000000000000000000000000000000000",
    "000000000000000000000000000000000000000bbbbbbbbb000000bbb000000000000000000000000000000"
    "00000000000000000000000000000000b66666666a000000000000b0000bbbbb00bbbbb0b0bbbbb0bbbb000",
    "0000000000000000000000000000000000000abaaaaaaaaa000000000000000000000000000000000000000"
    "0000001000001001000000001000000ba666aaaaaa00000000000b1b0000a010a000a000a0a000a0000a000",
    "00b000000000000000000054000001a00bb0000aaaaaaaa000000000000a001000000000000000540000000"
    "1000aaaaaaa0b00b000b0000b00001baa6666666666000000000baaab000a0aa1000a00000a000a0aaaa007",
    "bbab010bb00001001100002300000aa00000000aaaaaaaa01000001000aa0abbb0000000010000231011110"
    "b00000000000a00a000a0000a0000baaa666666666660a00000b00000b00a100a000a00000a011a0a000008",
    "aaaaaabaaaabbaaabbbbbbabbaaaaaa00000000aaaaaaaaaaaaaaaaaaaaabaaaa0000000aaaaaaaaaaaaaaa"
    "a00000000000a00a000a0000a000baaaaaaaaaaaaaaaaaaaa00a00000a0aaaaa00aaaaa000aaaaa0aaaabbb",
};

constexpr std::int32_t wert(char c) {
    return c < 'a' ? c - '0' : c - 'a' + 10;
}

struct Platz {
    std::int32_t Typ;
    float X;
    float Y;
    float VX;
    float LinksGrenze;
    float RechtsGrenze;
    std::int32_t RetteX;
    std::int32_t RetteY;
};

// Two that share a cell for the pixels under them are never in view together.
constexpr std::array<Platz, 12> plätze{{
    {0, 576, 336, -3, 0, 0, 48, 0},
    {0, 720, 336, -3, 0, 0, 96, 0},
    {0, 720, 336, 3, 0, 0, 192, 0},
    {1, 1920, 96, 0.5F, 0, 0, 144, 0},
    {0, 2544, 336, -3, 0, 0, 0, 96},
    {0, 2400, 336, -3, 0, 0, 48, 96},
    {3, 0, 118, -5, 0, 240, 96, 96},
    {3, 4368, 214, -5, 4368, 4656, 144, 96},
    {3, 5376, 262, -5, 5376, 5616, 192, 96},
    {2, 3744, 360, -5, 3600, 4128, 192, 0},
    {2, 3936, 360, -5, 3600, 4128, 192, 96},
    {0, 5808, 336, -3, 0, 0, 240, 0},
}};

}  // namespace

Karte::Karte() {
    for (std::size_t zeile = 0; zeile < level.size(); ++zeile)
        for (std::size_t spalte = 0; spalte < Levelspalten; ++spalte)
            kacheln_[zeile][spalte] = wert(level[zeile][spalte]);
}

Gegnerschar Startaufstellung() {
    Gegnerschar schar;
    for (std::size_t i = 0; i < schar.size(); ++i) {
        const Platz& p = plätze[i];
        Gegner& g = schar[i];
        g.Typ = p.Typ;
        g.X = p.X;
        g.Y = p.Y;
        g.VX = p.VX;
        g.LinksGrenze = p.LinksGrenze;
        g.RechtsGrenze = p.RechtsGrenze;
        g.RetteX = p.RetteX;
        g.RetteY = p.RetteY;
    }
    return schar;
}

}  // namespace zentrox
