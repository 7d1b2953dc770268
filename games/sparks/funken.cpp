#include "games/sparks/funken.h"

#include <algorithm>
#include <cmath>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr int brockenSeite = 6;
constexpr Colour rot{255, 0, 0};

std::int32_t abgeschnitten(float wert) {
    return Runden(std::floor(static_cast<double>(wert)));
}

// 2 to 11 ticks.
std::int16_t lebensdauer(Random& zufall) {
    return static_cast<std::int16_t>(zufall.below(10) + 2);
}

// Half pixels, from -3 to 2.5.
float tempo(Random& zufall) {
    return static_cast<float>(zufall.below(12) - 6) / 2;
}

float ort(Random& zufall, float von, float bis) {
    return static_cast<float>(std::floor(zufall.draw() * (bis - von)) + von);
}

}  // namespace

void Funken::Leeren() {
    for (Partikel& p : pool_) p.Aktiv = false;
    max_ = -1;
    frei_ = 0;
}

Partikel* Funken::nimm() {
    while (frei_ < PartikelAnzahl && (*this)[frei_].Aktiv) ++frei_;
    if (frei_ == PartikelAnzahl) return nullptr;
    max_ = std::max(max_, frei_);
    Partikel& p = (*this)[frei_++];
    p.Aktiv = true;
    return &p;
}

void Funken::einzelner(Random& zufall, Partikel& p, float X1, float Y1, float X2, float Y2) {
    p.X = ort(zufall, X1, X2);
    p.Y = ort(zufall, Y1, Y2);
    p.Leben = lebensdauer(zufall);
    const int grün = zufall.below(128) + 128;
    const int blau = zufall.below(255);
    p.Farbe = static_cast<std::int32_t>(Colour(255, grün, blau).rgb);
    p.VX = tempo(zufall);
    p.VY = tempo(zufall);
}

void Funken::brocken(Random& zufall, float cx, float cy) {
    const float vx = tempo(zufall);
    const float vy = tempo(zufall);
    for (int x = 0; x < brockenSeite; ++x)
        for (int y = 0; y < brockenSeite; ++y) {
            Partikel* const p = nimm();
            if (p == nullptr) return;
            p->X = cx + static_cast<float>(x);
            p->Y = cy + static_cast<float>(y);
            p->VX = vx;
            p->VY = vy;
            p->Leben = lebensdauer(zufall);
            p->Farbe = static_cast<std::int32_t>(rot.rgb);
        }
}

void Funken::Addpartikel(Random& zufall, int Anzahl, float X1, float Y1, float X2, float Y2, bool Brocken) {
    const auto mitte = [](float von, float bis) { return von + static_cast<float>(Runden(bis - von) / 2 - 2); };
    for (int i = 0; i < Anzahl; ++i) {
        if (Brocken) {
            brocken(zufall, mitte(X1, X2), mitte(Y1, Y2));
        } else {
            Partikel* const p = nimm();
            if (p == nullptr) return;
            einzelner(zufall, *p, X1, Y1, X2, Y2);
        }
    }
}

void Funken::stirb(int i) {
    (*this)[i].Aktiv = false;
    frei_ = std::min(frei_, i);
    if (i != max_) return;
    while (max_ >= 0 && !(*this)[max_].Aktiv) --max_;
}

void Funken::Altern() {
    for (int i = max_; i >= 0; --i) {
        Partikel& p = (*this)[i];
        if (!p.Aktiv || (art_ == Funkenart::abgeschnitten && !AufFeld(p))) continue;
        if (--p.Leben < 0) stirb(i);
    }
}

void Funken::Bewegen() {
    for (int i = 0; i <= max_; ++i) {
        Partikel& p = (*this)[i];
        if (!p.Aktiv) continue;
        p.X += p.VX;
        p.Y += p.VY;
    }
}

Point Funken::Pixel(const Partikel& p) const {
    if (art_ == Funkenart::gerundet) return {Runden(p.X), Runden(p.Y)};
    return {abgeschnitten(p.X), abgeschnitten(p.Y)};
}

bool Funken::AufFeld(const Partikel& p) const {
    if (art_ == Funkenart::abgeschnitten) return Rect({0, 0}, feld_).contains(Pixel(p));
    return p.X >= 0 && p.X <= static_cast<float>(feld_.w - 1) && p.Y >= 0 && p.Y <= static_cast<float>(feld_.h - 1);
}

}  // namespace zentrox
