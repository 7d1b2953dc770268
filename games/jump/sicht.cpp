#include "games/jump/sicht.h"

#include "engine/state/felder.h"
#include "games/jump/level.h"

namespace zentrox {

namespace {

constexpr std::int32_t sichtSpalten = Jumpfeld.w / Kachel;
constexpr std::int32_t letzteSpalte = Levelspalten - 1;
constexpr std::int32_t sichererRand = Kachel * (letzteSpalte - sichtSpalten);

}  // namespace

void Sicht::Scroll(std::int32_t d) {
    if (d < 0) links(-d);
    if (d > 0) rechts(d);
}

void Sicht::links(std::int32_t a) {
    const std::int32_t x = Runden(ScrollX);
    if (x - a < 0) {
        if (x > 0) links(x);
    } else if ((x - a) / Kachel != x / Kachel && x % Kachel != 0) {
        links(x % Kachel);
        links(a - x % Kachel);
    } else {
        schritt(-a);
    }
}

// A step too far goes back to the column before; the small steps of play come to rest just short of the last one.
void Sicht::rechts(std::int32_t d) {
    const std::int32_t x = Runden(ScrollX);
    const std::int32_t rest = (x + d) % Kachel;
    if ((x + d) / Kachel + sichtSpalten > letzteSpalte) {
        if (sichererRand > x) rechts(sichererRand - x);
    } else if ((x + d) / Kachel != x / Kachel && rest > 0) {
        rechts(d - rest);
        rechts(rest);
    } else {
        schritt(d);
    }
}

void Sicht::schritt(std::int32_t d) {
    Schritte.push_back({d, Runden(ScrollX)});
    ScrollX += static_cast<float>(d);
}

}  // namespace zentrox
