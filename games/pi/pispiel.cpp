#include "games/pi/pispiel.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr std::int32_t überallAb = 12;
constexpr std::int32_t größeNach = 25;
constexpr std::int32_t farbeNach = 50;

constexpr float schriftNormal = 72;
constexpr float schriftKleinste = 8;
constexpr double schriftSpanne = 88;
constexpr double farbeDunkelste = 64;
constexpr double farbeSpanne = 192;
constexpr int hellstes = 255;

int farbteil(Random& zufall) {
    return std::min(Runden(zufall.draw() * farbeSpanne + farbeDunkelste), hellstes);
}

Colour farbe(std::int32_t anzahl, Random& zufall) {
    if (anzahl <= farbeNach) return white;
    const int rot = farbteil(zufall);
    const int grün = farbteil(zufall);
    const int blau = farbteil(zufall);
    return {rot, grün, blau};
}

float schrift(std::int32_t anzahl, Random& zufall) {
    if (anzahl <= größeNach) return schriftNormal;
    return static_cast<float>(schriftKleinste + zufall.draw() * schriftSpanne);
}

std::optional<Pifrage::Anteil> ort(std::int32_t anzahl, Random& zufall) {
    if (anzahl < überallAb) return std::nullopt;
    const double x = zufall.draw();
    const double y = zufall.draw();
    return Pifrage::Anteil{x, y};
}

bool tippbar(char c) {
    return static_cast<unsigned char>(c) >= ' ';
}

}  // namespace

Text PiLesen(const Files& files, TextView pfad) {
    Text zeichen = files.read(pfad, limits::tableBytes);
    std::erase_if(zeichen, [](char c) { return !tippbar(c); });
    if (zeichen.size() > piZeichen) zeichen.resize(piZeichen);
    if (zeichen.empty()) throw DataError("Die Datei \"" + files.display(pfad) + "\" ist leer.");
    return zeichen;
}

// The colour is drawn first, then the size, then the place.
Pifrage PIspiel::Weiter(Random& zufall) {
    ++anzahl;
    taste = 0;
    Pifrage frage{.nummer = anzahl, .zeichen = Zeichen[static_cast<std::size_t>(anzahl - 1)]};
    frage.farbe = farbe(anzahl, zufall);
    frage.schrift = schrift(anzahl, zufall);
    frage.ort = ort(anzahl, zufall);
    return frage;
}

std::int64_t PIspiel::Frist() const {
    return std::max<std::int64_t>(2000 - 10 * std::int64_t{anzahl}, 0);
}

bool PIspiel::Antwort(std::int16_t antwort) {
    taste = antwort == ',' ? '.' : antwort;
    return taste == static_cast<unsigned char>(Zeichen[static_cast<std::size_t>(anzahl - 1)]) && !alle();
}

TextView PIspiel::Urteil() const {
    if (alle()) return "Ich glaub du hast geschummelt, denn du hast alle";
    if (taste == 0) return "Das war leider zu langsam... Du hast";
    return "Da hast du dich wohl vertippt, aber du hast";
}

}  // namespace zentrox
