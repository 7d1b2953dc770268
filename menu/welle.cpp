#include "menu/welle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr int Mitte = 470;   // pixels; the line that the bars stand on
constexpr int Höchste = 24;  // pixels at each side of it
constexpr int Schritt = 6;   // pixels from bar to bar
constexpr int Letzte = 276;
constexpr double Grad = std::numbers::pi / 4 / 90;

int ausschlag(double f, int y) {
    const double h1 = std::sin((f + y) * 0.5 * Grad) * std::sin(f * 0.6 * Grad);
    const double h2 = std::sin((2 * f + y + 50) * 4 * Grad) * std::sin(2 * 1.2 * f * Grad);
    return std::min(Höchste, Runden(std::max(std::abs(h1), std::abs(h2)) * Höchste));
}

}  // namespace

void WelleZeichnen(Surface& fläche, float phase) {
    fläche.box({445, 0}, {495, 300}, black);
    for (int y = 0; y <= Letzte; y += Schritt) {
        const int h = ausschlag(phase, y);
        fläche.box({Mitte - h, y}, {Mitte + h, y + Schritt - 1}, Colour(0, (h + 1) * 5, 0));
    }
}

}  // namespace zentrox
