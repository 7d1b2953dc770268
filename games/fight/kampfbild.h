// How the fight looks: a picture that fills the surface, and what is drawn over it.
#pragma once

#include "games/fight/kampf.h"
#include "platform/window/surface.h"

namespace zentrox {

constexpr int Ringe = 41;        // of the ball, each half a pixel wider than the one before
constexpr int Strahllänge = 34;  // steps of the beam

class Kampfbild {
public:
    // The surface must outlive it.
    explicit Kampfbild(Surface& picture1);

    // Replaces everything drawn so far.
    void Bild(const Bitmap& bild) { Picture1.setPicture(bild); }
    // Big letters with a shadow, in the middle.
    void PrintText(TextView text, Kämpfer farbe);
    // Ring `n` of the ball, from 0; all of them fill it.
    void Ring(int n);
    // The beam after step `n`, from 1: the last reaches the left edge.
    void Strahl(int n);
    // Turns all colours over; twice is nothing.
    void Umkehren();

private:
    Surface& Picture1;
};

}  // namespace zentrox
