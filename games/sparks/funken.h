// The sparks of Jump and Bruhks: a fixed pool of single pixels that fly straight, live for a few ticks and die. A
// plain value that nobody sees; `Funkenbild` shows it.
#pragma once

#include <array>
#include <cstdint>

#include "platform/values/geometry.h"
#include "platform/values/random.h"

namespace zentrox {

struct Partikel {
    float X = 0;  // in pixels of the surface: a spark does not scroll with a level
    float Y = 0;
    float VX = 0;  // pixels a tick
    float VY = 0;
    std::int32_t Farbe = 0;
    std::int16_t Leben = 0;  // ticks left
    bool Aktiv = false;
};

constexpr int PartikelAnzahl = 1001;

// How a game sets its sparks on whole pixels, and what becomes of those that leave the surface.
enum class Funkenart {
    gerundet,       // on the nearest pixel; a spark ages wherever it is
    abgeschnitten,  // on the pixel of its integer part; off the surface it flies on for good and keeps its slot
};

class Funken {
public:
    Funken(Funkenart art, Size feld) : art_(art), feld_(feld) {}

    void Leeren();

    // Starts `Anzahl` sparks in a rectangle of the surface: single ones of warm colours, each at a place of its
    // own, or as `Brocken` red chunks of 6 by 6 from its middle. What finds no free slot is left out.
    void Addpartikel(Random& zufall, int Anzahl, float X1, float Y1, float X2, float Y2, bool Brocken);

    // The beginning of a tick, when all sparks have been taken off the surface: they get older, some die.
    void Altern();
    // The end of a tick: all fly on by one step.
    void Bewegen();

    // Of an active spark: whether it lies on the surface, and its pixel there.
    bool AufFeld(const Partikel& p) const;
    Point Pixel(const Partikel& p) const;

    Partikel& operator[](int i) { return pool_[static_cast<std::size_t>(i)]; }
    const Partikel& operator[](int i) const { return pool_[static_cast<std::size_t>(i)]; }
    // No spark above it is active; -1 when none is.
    int PartikelMax() const { return max_; }
    // All slots below it are in use.
    int PartikelFrei() const { return frei_; }
    Funkenart Art() const { return art_; }

private:
    // A slot taken into use, null if none is free.
    Partikel* nimm();
    void einzelner(Random& zufall, Partikel& p, float X1, float Y1, float X2, float Y2);
    void brocken(Random& zufall, float cx, float cy);
    void stirb(int i);

    Funkenart art_;
    Size feld_;
    std::array<Partikel, PartikelAnzahl> pool_{};
    int max_ = -1;
    int frei_ = 0;
};

}  // namespace zentrox
