#include "games/sparks/funkenbild.h"

namespace zentrox {

void FunkenWeg(Surface& feld, const Funken& funken) {
    for (int i = funken.PartikelMax(); i >= 0; --i) {
        const Partikel& p = funken[i];
        if (p.Aktiv && p.Untergrund != -1 && funken.AufFeld(p))
            feld.setPixel(funken.Pixel(p), Colour(static_cast<std::uint32_t>(p.Untergrund)));
    }
}

void FunkenHin(Surface& feld, Funken& funken) {
    for (int i = 0; i <= funken.PartikelMax(); ++i) {
        Partikel& p = funken[i];
        if (!p.Aktiv || !funken.AufFeld(p)) continue;
        const Point pixel = funken.Pixel(p);
        p.Untergrund = feld.pixel(pixel);
        feld.setPixel(pixel, Colour(static_cast<std::uint32_t>(p.Farbe)));
    }
}

}  // namespace zentrox
