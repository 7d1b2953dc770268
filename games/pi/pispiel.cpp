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

bool tippbar(char c) {
    return static_cast<unsigned char>(c) >= ' ';
}

}  // namespace

Text PiLesen(const Files& files, TextView pfad) {
    Text zeichen = files.read(pfad);
    std::erase_if(zeichen, [](char c) { return !tippbar(c); });
    if (zeichen.size() > piZeichen) zeichen.resize(piZeichen);
    if (zeichen.empty()) throw DataError("Die Datei \"" + files.display(pfad) + "\" ist leer.");
    return zeichen;
}

std::int64_t PiFrist(std::int32_t anzahl) {
    return std::max<std::int64_t>(2000 - 10 * std::int64_t{anzahl}, 0);
}

bool PiRichtig(std::int16_t taste, char zeichen) {
    if (taste == ',') taste = '.';
    return taste == static_cast<unsigned char>(zeichen);
}

Colour PiFarbe(std::int32_t anzahl, Random& zufall) {
    if (anzahl <= farbeNach) return white;
    const int rot = farbteil(zufall);
    const int grün = farbteil(zufall);
    const int blau = farbteil(zufall);
    return {rot, grün, blau};
}

float PiSchrift(std::int32_t anzahl, Random& zufall) {
    if (anzahl <= größeNach) return schriftNormal;
    return static_cast<float>(schriftKleinste + zufall.draw() * schriftSpanne);
}

Point PiOrt(std::int32_t anzahl, Size fläche, Size zeichen, Random& zufall) {
    if (anzahl < überallAb) return PiMitte(fläche, zeichen);
    const int x = Runden(zufall.draw() * (fläche.w - zeichen.w));
    const int y = Runden(zufall.draw() * (fläche.h - zeichen.h));
    return {x, y};
}

Point PiMitte(Size fläche, Size text) {
    return {fläche.w / 2 - text.w / 2, fläche.h / 2 - text.h / 2};
}

TextView PiUrteil(std::int32_t anzahl, std::int32_t letztes, std::int16_t taste) {
    if (anzahl == letztes) return "Ich glaub du hast geschummelt, denn du hast alle";
    if (taste == 0) return "Das war leider zu langsam... Du hast";
    return "Da hast du dich wohl vertippt, aber du hast";
}

}  // namespace zentrox
