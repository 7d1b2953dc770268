#include "games/bruhks/bruhksspiel.h"

#include <algorithm>
#include <cmath>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr int frameTicks = 5;  // the wings beat when a frame has lasted longer
constexpr int klickFunken = 10;
constexpr int trefferBrocken = 6;

constexpr double feuerwerkChance = 0.05;
constexpr int feuerwerkFunken = 250;
constexpr float feuerwerkSeite = 50;
constexpr float textTempo = 0.1F;
constexpr float klickPause = 10;  // angle before which the celebration takes no click

float ort(Random& zufall, int spielraum) {
    return static_cast<float>(Runden(zufall.draw() * spielraum));
}

}  // namespace

Bruhksspiel::Bruhksspiel(Random& zufall, float PI, Size feld, Size frame)
    : Funken(Funkenart::abgeschnitten, feld),
      PI_(PI),
      feld_(feld),
      frame_(frame) {
    constexpr int dauer = 60;
    constexpr int mindestens = 40;
    for (Kreatur& k : Kreaturen) {
        k.StartX = ort(zufall, spielraumX());
        k.StartY = ort(zufall, spielraumY());
        k.ZielX = ort(zufall, spielraumX());
        k.ZielY = ort(zufall, spielraumY());
        k.RestX = Runden(zufall.draw() * dauer + mindestens);
        k.RestY = Runden(zufall.draw() * dauer + mindestens);
        k.DauerX = k.RestX;
        k.DauerY = k.RestY;
        k.PosX = k.StartX;
        k.PosY = k.StartY;
    }
}

void Bruhksspiel::Klick(std::int16_t taste, float x, float y) {
    KlickTaste = taste;
    KlickX = x;
    KlickY = y;
}

void Bruhksspiel::Sekunde() {
    if (++Sekunden == Jagdsekunden) Ende = 1;
}

void Bruhksspiel::Tick(Random& zufall) {
    Funken.Altern();
    if (Sieg)
        siegTick(zufall);
    else
        jagdTick(zufall);
    Funken.Bewegen();
}

// --- the hunt

void Bruhksspiel::jagdTick(Random& zufall) {
    if (KlickTaste == linkeTaste) Funken.Addpartikel(zufall, klickFunken, KlickX, KlickY, KlickX, KlickY, false);
    if (!ErsterTick)
        for (auto k = Kreaturen.rbegin(); k != Kreaturen.rend(); ++k)
            if (k->Lebt && getroffen(*k)) treffer(*k, zufall);
    ErsterTick = false;
    KlickTaste = 0;
    for (Kreatur& k : Kreaturen)
        if (k.Lebt) gleiten(k, zufall);
}

bool Bruhksspiel::getroffen(const Kreatur& k) const {
    return KlickTaste == linkeTaste && KlickX > k.PosX && KlickX < k.PosX + static_cast<float>(frame_.w) &&
           KlickY > k.PosY && KlickY < k.PosY + static_cast<float>(frame_.h);
}

// The click is used up, so that it hits one creature: the one that was drawn last.
void Bruhksspiel::treffer(Kreatur& k, Random& zufall) {
    KlickTaste = 0;
    Funken.Addpartikel(zufall, trefferBrocken, k.PosX, k.PosY, k.PosX + static_cast<float>(frame_.w),
                       k.PosY + static_cast<float>(frame_.h), true);
    k.Lebt = false;
    --Uebrig;
}

// One axis of a creature: each travels by itself.
struct Bruhksspiel::Achse {
    std::int32_t& rest;
    std::int32_t& dauer;
    float& start;
    float& ziel;
    float& pos;
};

void Bruhksspiel::gleiten(Kreatur& k, Random& zufall) const {
    reisen({k.RestX, k.DauerX, k.StartX, k.ZielX, k.PosX}, spielraumX(), zufall);
    reisen({k.RestY, k.DauerY, k.StartY, k.ZielY, k.PosY}, spielraumY(), zufall);
    if (++k.FrameZeit <= frameTicks) return;
    k.FrameZeit = 0;
    k.Frame = 1 - k.Frame;
}

// The cosine starts a journey fast and ends it softly.
void Bruhksspiel::reisen(const Achse& achse, int spielraum, Random& zufall) const {
    constexpr int dauer = 40;
    constexpr int mindestens = 40;
    if (--achse.rest == 0) {
        achse.start = achse.ziel;
        achse.pos = achse.ziel;
        achse.ziel = ort(zufall, spielraum);
        achse.rest = Runden(zufall.draw() * dauer + mindestens);
        achse.dauer = achse.rest;
    } else {
        const double teil = std::cos(static_cast<double>(PI_) / 2 * achse.rest / achse.dauer);
        achse.pos = static_cast<float>(achse.start + (achse.ziel - achse.start) * teil);
    }
}

// --- the celebration

void Bruhksspiel::SiegBeginn(Point mitte) {
    Sieg = true;
    KlickTaste = 0;
    mitte_ = mitte;
    Textspur.fill(mitte);
}

bool Bruhksspiel::Entscheiden(bool sieg) {
    if (!Jagd()) return false;
    if (sieg) {
        for (Kreatur& k : Kreaturen) k.Lebt = false;
        Uebrig = 0;
    } else {
        Ende = 1;
    }
    return true;
}

// Each place takes the value of the next newer one.
void Bruhksspiel::text() {
    winkel_ += textTempo;
    const double w = winkel_;
    const double x = mitte_.x;
    const double y = mitte_.y;
    std::rotate(Textspur.begin(), Textspur.begin() + 1, Textspur.end());
    Textspur.back() = {Runden(x + x * std::sin(w / 2) * std::cos(w)),
                       Runden(y + y * std::cos(2 * w) * std::sin(w / 3))};
}

void Bruhksspiel::siegTick(Random& zufall) {
    text();
    if (zufall.draw() < feuerwerkChance) {
        const float x = static_cast<float>(zufall.draw() * (static_cast<float>(feld_.w) - feuerwerkSeite));
        const float y = static_cast<float>(zufall.draw() * (static_cast<float>(feld_.h) - feuerwerkSeite));
        Funken.Addpartikel(zufall, feuerwerkFunken, x, y, x + feuerwerkSeite, y + feuerwerkSeite, false);
    }
    if (winkel_ <= klickPause)
        KlickTaste = 0;
    else if (KlickTaste != 0)
        Ende = 1;
}

}  // namespace zentrox
