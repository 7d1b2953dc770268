// Picture loading, the fades and the zooms. The animations last a second by the clock and draw as often as the
// display shows.
#include <cmath>

#include "engine/state/felder.h"
#include "platform/codec/pictures.h"
#include "room/form1.h"

namespace zentrox {

namespace {

constexpr Milliseconds dauer = 1000;
constexpr double grauProMs = 0.255;
constexpr int einzelnesGrau = 64;  // for a machine that manages one round only
constexpr Size ansicht{640, 480};

// Far beyond any picture; holds the sums of the region within an int.
constexpr std::int32_t fernstes = 100000;

void ordne(int& a, int& b) {
    if (a > b) std::swap(a, b);
    if (a == b) b += 2;
}

// Pushes a span into 0 to `ganz`, keeping its length.
void schiebeHinein(int& a, int& b, int ganz) {
    if (a < 0) {
        b -= a;
        a = 0;
    }
    if (b > ganz) {
        a += ganz - b;
        b = ganz;
    }
}

// Widens a span to `hälfte` on both sides of its middle.
void weite(int& a, int& b, int hälfte) {
    const int mitte = (b - a) / 2 + a;
    a = mitte - hälfte;
    b = mitte + hälfte;
}

int abwärts(float wert) {
    return static_cast<int>(std::floor(wert));
}

}  // namespace

void Form1::BildLaden(TextView Bild) {
    const Text pfad = Trim(Bild);
    textband_.reset();
    if (!pfad.empty() && pfad.back() == '\\') {
        for (Surface* const fläche : {&Picture1, &Picture2, &Picture3}) {
            fläche->setBack(black);
            fläche->clear();
        }
        return;
    }
    Picture2.takePicture(loadPicture(platform_.files, pfad));
    Picture1.clear();
    Picture1.setAutoRedraw(true);
    Picture1.stretch(Picture2.image(), Picture2.image().bounds(), {{0, 0}, ansicht});
    sichern();
}

void Form1::blendRunde(int grau) {
    textband_.reset();
    Picture5.setPixel({0, 0}, {grau, grau, grau});
    Picture1.setPicture(Picture3.image());
    Picture1.stretch(Picture5.image(), {0, 0, 1, 1}, Picture1.image().bounds(), Op::bitOr);
    platform_.queue.nextFrame("Blende");
}

void Form1::blenden(bool hinein) {
    const Milliseconds ende = platform_.queue.clock() + dauer;
    int runden = 0;
    for (Milliseconds jetzt = platform_.queue.clock(); jetzt < ende; jetzt = platform_.queue.clock()) {
        ++runden;
        const Milliseconds t = hinein ? dauer - (ende - jetzt) : ende - jetzt;
        blendRunde(std::clamp(Runden(static_cast<double>(t) * grauProMs), 0, 255));
    }
    if (runden == 1) blendRunde(einzelnesGrau);
}

void Form1::BlendWeiß() {
    blenden(true);
    Picture1.box({0, 0}, {Picture1.width(), Picture1.height()}, white);
}

void Form1::BlendWeißOut() {
    Picture1.box({0, 0}, {Picture1.width(), Picture1.height()}, white);
    platform_.queue.yield("Blende");
    blenden(false);
    Picture1.setPicture(Picture3.image());
}

// The rectangle of the file's picture that a rectangle of the room stands for, widened to the picture's shape.
Form1::Region Form1::zoomRegion(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) const {
    for (std::int32_t* const ecke : {&FX1, &FY1, &FX2, &FY2}) *ecke = std::clamp(*ecke, -fernstes, fernstes);
    ordne(FX1, FX2);
    ordne(FY1, FY2);
    const std::int64_t W = Picture2.width();
    const std::int64_t H = Picture2.height();
    Region r{static_cast<int>(W * FX1 / Picture1.width()), static_cast<int>(H * FY1 / Picture1.height()),
             static_cast<int>(W * FX2 / Picture1.width()), static_cast<int>(H * FY2 / Picture1.height())};
    const double breite = static_cast<double>(r.X2 - r.X1) / static_cast<double>(W);
    const double höhe = static_cast<double>(r.Y2 - r.Y1) / static_cast<double>(H);
    if (höhe < breite) {
        weite(r.Y1, r.Y2, Runden(breite * static_cast<double>(H)) / 2);
        schiebeHinein(r.Y1, r.Y2, static_cast<int>(H));
    } else {
        weite(r.X1, r.X2, Runden(höhe * static_cast<double>(W)) / 2);
        schiebeHinein(r.X1, r.X2, static_cast<int>(W));
    }
    return r;
}

void Form1::zoomen(const Region& region, bool hinein) {
    const int PW = Picture2.width();
    const int PH = Picture2.height();
    const auto rate = [](int weg) { return static_cast<float>(weg) / static_cast<float>(dauer); };
    const float a = rate(region.X1);
    const float b = rate(region.Y1);
    const float e = rate(region.X2 - PW);
    const float f = rate(region.Y2 - PH);
    const Rect alles = Picture1.image().bounds();

    textband_.reset();
    Picture1.setAutoRedraw(false);
    const Milliseconds ende = platform_.queue.clock() + dauer;
    for (Milliseconds jetzt = platform_.queue.clock(); jetzt < ende; jetzt = platform_.queue.clock()) {
        const auto t = static_cast<float>(hinein ? dauer - (ende - jetzt) : ende - jetzt);
        const int L = abwärts(a * t);
        const int O = abwärts(b * t);
        const int R = abwärts(e * t + static_cast<float>(PW));
        const int U = abwärts(f * t + static_cast<float>(PH));
        Picture1.stretch(Picture2.image(), {L, O, R - L, U - O}, alles);
        platform_.queue.nextFrame("Zoom");
    }
    Picture1.setAutoRedraw(true);
    const Rect letztes = hinein ? Rect{region.X1, region.Y1, region.X2 - region.X1, region.Y2 - region.Y1}
                                : Picture2.image().bounds();
    Picture1.stretch(Picture2.image(), letztes, alles);
    sichern();
}

void Form1::ZoomIN(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) {
    zoomen(zoomRegion(FX1, FY1, FX2, FY2), true);
}

void Form1::ZoomOUT(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) {
    zoomen(zoomRegion(FX1, FY1, FX2, FY2), false);
}

}  // namespace zentrox
