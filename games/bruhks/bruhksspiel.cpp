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

}  // namespace

Bruhksspiel::Bruhksspiel(Random& zufall, float PI, Size feld, Size frame)
    : Funken(Funkenart::abgeschnitten, feld),
      zufall_(zufall),
      PI_(PI),
      feld_(feld),
      frame_(frame) {
    constexpr int dauer = 60;
    constexpr int mindestens = 40;
    for (Kreatur& k : Kreaturen) {
        k.StartX = ort(spielraumX());
        k.StartY = ort(spielraumY());
        k.ZielX = ort(spielraumX());
        k.ZielY = ort(spielraumY());
        k.RestX = Runden(zufall_.draw() * dauer + mindestens);
        k.RestY = Runden(zufall_.draw() * dauer + mindestens);
        k.DauerX = k.RestX;
        k.DauerY = k.RestY;
        k.PosX = k.StartX;
        k.PosY = k.StartY;
    }
}

float Bruhksspiel::ort(int spielraum) {
    return static_cast<float>(Runden(zufall_.draw() * spielraum));
}

void Bruhksspiel::Klick(std::int16_t taste, float x, float y) {
    KlickTaste = taste;
    KlickX = x;
    KlickY = y;
}

void Bruhksspiel::Sekunde() {
    if (++Sekunden == Jagdsekunden) Ende = 1;
}

// --- the hunt

void Bruhksspiel::JagdTick() {
    Funken.Altern();
    if (KlickTaste == linkeTaste) Funken.Addpartikel(zufall_, klickFunken, KlickX, KlickY, KlickX, KlickY, false);
    if (!ErsterTick)
        for (auto k = Kreaturen.rbegin(); k != Kreaturen.rend(); ++k)
            if (k->Lebt && getroffen(*k)) treffer(*k);
    ErsterTick = false;
    KlickTaste = 0;
    for (Kreatur& k : Kreaturen)
        if (k.Lebt) gleiten(k);
    Funken.Bewegen();
}

bool Bruhksspiel::getroffen(const Kreatur& k) const {
    return KlickTaste == linkeTaste && KlickX > k.PosX && KlickX < k.PosX + static_cast<float>(frame_.w) &&
           KlickY > k.PosY && KlickY < k.PosY + static_cast<float>(frame_.h);
}

// The click is used up, so that it hits one creature: the one that was drawn last.
void Bruhksspiel::treffer(Kreatur& k) {
    KlickTaste = 0;
    Funken.Addpartikel(zufall_, trefferBrocken, k.PosX, k.PosY, k.PosX + static_cast<float>(frame_.w),
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

void Bruhksspiel::gleiten(Kreatur& k) {
    reisen({k.RestX, k.DauerX, k.StartX, k.ZielX, k.PosX}, spielraumX());
    reisen({k.RestY, k.DauerY, k.StartY, k.ZielY, k.PosY}, spielraumY());
    if (++k.FrameZeit <= frameTicks) return;
    k.FrameZeit = 0;
    k.Frame = 1 - k.Frame;
}

// The cosine starts a journey fast and ends it softly.
void Bruhksspiel::reisen(const Achse& achse, int spielraum) {
    constexpr int dauer = 40;
    constexpr int mindestens = 40;
    if (--achse.rest == 0) {
        achse.start = achse.ziel;
        achse.pos = achse.ziel;
        achse.ziel = ort(spielraum);
        achse.rest = Runden(zufall_.draw() * dauer + mindestens);
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

void Bruhksspiel::SiegTickText() {
    Funken.Altern();
    winkel_ += textTempo;
    const double w = winkel_;
    const double x = mitte_.x;
    const double y = mitte_.y;
    std::rotate(Textspur.begin(), Textspur.begin() + 1, Textspur.end());
    Textspur.back() = {Runden(x + x * std::sin(w / 2) * std::cos(w)),
                       Runden(y + y * std::cos(2 * w) * std::sin(w / 3))};
}

void Bruhksspiel::SiegTickFunken() {
    if (zufall_.draw() < feuerwerkChance) {
        const float x = static_cast<float>(zufall_.draw() * (static_cast<float>(feld_.w) - feuerwerkSeite));
        const float y = static_cast<float>(zufall_.draw() * (static_cast<float>(feld_.h) - feuerwerkSeite));
        Funken.Addpartikel(zufall_, feuerwerkFunken, x, y, x + feuerwerkSeite, y + feuerwerkSeite, false);
    }
    if (winkel_ <= klickPause)
        KlickTaste = 0;
    else if (KlickTaste != 0)
        Ende = 1;
    Funken.Bewegen();
}

}  // namespace zentrox
