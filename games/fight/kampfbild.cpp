#include "games/fight/kampfbild.h"

#include <array>
#include <cmath>

namespace zentrox {

namespace {

constexpr float schriftgrad = 48;
constexpr int schattenwurf = 5;

struct Schriftfarbe {
    Colour schatten;
    Colour haupt;
};
// In the order of `Kämpfer`.
constexpr std::array Schriftfarben{
    Schriftfarbe{{128, 0, 0}, {255, 0, 0}},
    Schriftfarbe{{0, 0, 128}, {0, 0, 255}},
    Schriftfarbe{{128, 128, 128}, {255, 255, 255}},
};

constexpr Point ballMitte{340, 130};
constexpr int strahlHalb = 20;  // of its height
constexpr int strahlschritt = 10;

// Half the length of the row `y` of a disc; negative where the row misses it.
int halbeReihe(double radius, int y) {
    const double quadrat = radius * radius - static_cast<double>(y) * y;
    return quadrat < 0 ? -1 : static_cast<int>(std::sqrt(quadrat));
}

}  // namespace

Kampfbild::Kampfbild(Surface& picture1) : Picture1(picture1) {
    Picture1.font = {"Arial", schriftgrad, true};
}

void Kampfbild::PrintText(TextView text, Kämpfer farbe) {
    const auto& [schatten, haupt] = Schriftfarben[static_cast<std::size_t>(farbe)];
    const Size größe = Picture1.measure(text);
    const Point at{Picture1.width() / 2 - größe.w / 2, Picture1.height() / 2 - größe.h / 2};
    Picture1.printAt(at + Point{schattenwurf, schattenwurf}, text, schatten);
    Picture1.printAt(at, text, haupt);
}

// A circle a pixel wide, row by row, since rings of whole pixels would leave holes between them.
void Kampfbild::Ring(int n) {
    const double außen = n / 2.0 + 0.5;
    const double innen = außen - 1;
    for (int y = -static_cast<int>(außen); y <= static_cast<int>(außen); ++y) {
        const int ende = halbeReihe(außen, y);
        const int anfang = innen > 0 ? halbeReihe(innen, y) + 1 : 0;
        if (anfang > ende) continue;
        Picture1.line(ballMitte + Point{anfang, y}, ballMitte + Point{ende, y}, white);
        Picture1.line(ballMitte + Point{-ende, y}, ballMitte + Point{-anfang, y}, white);
    }
}

void Kampfbild::Strahl(int n) {
    Picture1.box(ballMitte + Point{-strahlschritt * n, -strahlHalb}, ballMitte + Point{0, strahlHalb}, white);
}

void Kampfbild::Umkehren() {
    Picture1.invertBox({0, 0}, {Picture1.width() - 1, Picture1.height() - 1});
}

}  // namespace zentrox
