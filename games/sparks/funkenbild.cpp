#include "games/sparks/funkenbild.h"

namespace zentrox {

void Funkenbild::Zeichnen(const Funken& funken) {
    for (int i = 0; i <= funken.PartikelMax(); ++i) {
        const Partikel& p = funken[i];
        if (!p.Aktiv || !funken.AufFeld(p)) continue;
        const Point ort = funken.Pixel(p);
        Untergrund.push_back({ort, Colour(static_cast<std::uint32_t>(Feld.pixel(ort)))});
        Feld.setPixel(ort, Colour(static_cast<std::uint32_t>(p.Farbe)));
    }
}

void Funkenbild::Entfernen() {
    for (auto punkt = Untergrund.rbegin(); punkt != Untergrund.rend(); ++punkt)
        Feld.setPixel(punkt->ort, punkt->farbe);
    Untergrund.clear();
}

}  // namespace zentrox
