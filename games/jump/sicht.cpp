#include "games/jump/sicht.h"

#include "engine/state/felder.h"
#include "games/jump/level.h"

namespace zentrox {

namespace {

constexpr std::int32_t sichtSpalten = Jumpfeld.w / Kachel;
constexpr std::int32_t letzteSpalte = Levelspalten - 1;
constexpr std::int32_t sichererRand = Kachel * (letzteSpalte - sichtSpalten);

}  // namespace

void Sicht::Scroll(std::int32_t d, Scrollschritte& schritte) {
    if (d < 0) links(-d, schritte);
    if (d > 0) rechts(d, schritte);
}

void Sicht::links(std::int32_t a, Scrollschritte& schritte) {
    const std::int32_t x = Runden(ScrollX);
    if (x - a < 0) {
        if (x > 0) links(x, schritte);
    } else if ((x - a) / Kachel != x / Kachel && x % Kachel != 0) {
        links(x % Kachel, schritte);
        links(a - x % Kachel, schritte);
    } else {
        schritt(-a, schritte);
    }
}

// A step too far goes back to the column before; the small steps of play come to rest just short of the last one.
void Sicht::rechts(std::int32_t d, Scrollschritte& schritte) {
    const std::int32_t x = Runden(ScrollX);
    const std::int32_t rest = (x + d) % Kachel;
    if ((x + d) / Kachel + sichtSpalten > letzteSpalte) {
        if (sichererRand > x) rechts(sichererRand - x, schritte);
    } else if ((x + d) / Kachel != x / Kachel && rest > 0) {
        rechts(d - rest, schritte);
        rechts(rest, schritte);
    } else {
        schritt(d, schritte);
    }
}

void Sicht::schritt(std::int32_t d, Scrollschritte& schritte) {
    schritte.push_back({d, Runden(ScrollX)});
    ScrollX += static_cast<float>(d);
}

}  // namespace zentrox
