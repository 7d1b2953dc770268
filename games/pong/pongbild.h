// How Pong looks: one black field on which small pictures are painted and small black boxes erase them again. The
// punch of a paddle with its sparks, the trail of the ball, the score and the picture at the end decide nothing.
#pragma once

#include "engine/state/zustand.h"
#include "games/pong/pongspiel.h"
#include "platform/machine/files.h"
#include "platform/window/surface.h"

namespace zentrox {

struct Pongbilder {
    std::array<Bitmap, 4> Image1;  // the ball, then its trail from near to far
    Bitmap Image4;                 // the paddles, left and right
    Bitmap Image5;
    std::array<Bitmap, 2> Image7;  // sparks of a hit, left and right
    Bitmap Image8;                 // the computer has won
    Bitmap Image9;                 // the player has won
};

// Reads them from a directory. Throws `DataError` that names the file that can't be read.
Pongbilder PongbilderLaden(const Files& files, TextView pfad);

class Pongbild : public Pongansicht {
public:
    // The surface must outlive it.
    Pongbild(Surface& picture1, Pongbilder bilder);

    void neuesFeld(const Pongstand& s) override;
    void feldLeeren() override;
    void schrittBeginnt() override;
    void treffer(Seite seite, const Pongstand& s) override;
    void schlag(Seite seite, const Pongstand& s) override;
    void ballVorher(const Pongstand& s) override;
    void spurAnWand(float y) override { spurY = {y, y, y}; }
    void ballNachher(const Pongstand& s) override;
    void ballWeg(const Pongstand& s) override;
    void aufschlagVon(Seite seite, const Pongstand& s) override;
    void gegnerVorher(const Pongstand& s) override;
    void gegnerNachher(const Pongstand& s) override;
    void gegnerRuht(const Pongstand& s) override;
    void spielerVorher(const Pongstand& s) override;
    void spielerNachher(const Pongstand& s) override;
    void beideRuhen(const Pongstand& s) override;
    void punkteZeigen(const Pongstand& s) override;
    void punkteWeg() override;
    void fallVorher(const Pongstand& s) override;
    void fallNachher(const Pongstand& s) override;
    void fallEndet(const Pongstand& s) override;
    void endbild(Seite sieger) override;

private:
    void schwarz(double x1, double y1, double x2, double y2);
    void schlägerLöschen(double x, double y);
    void malen(const Bitmap& bild, double x, double y, Op op = Op::plain);
    void schlagAus(Seite seite, const Pongstand& s);
    void schlagEndet(const Pongstand& s);
    void funkenBewegen();
    void funkenLöschen();
    void funkenMalen(Seite seite);
    void ballLöschen(double x, double y);
    void spurLöschen();
    void spurBewegen(const Pongstand& s);
    void fallLöschen(const Pongstand& s);
    void punkteDrucken(const Pongstand& s);
    void MoveBigPartikel1();
    void endbildLöschen(double x0);

    Surface& Picture1;
    Pongbilder bilder_;

    float spielerX = 610;
    float gegnerX = 17;
    float spielerYAlt = anstoßHöhe;

    bool schlagLaeuft = true;
    float schlagZeit = 0;
    float schlagZeit2 = 0;
    float schlagWeg = 0;
    float funkenX = 28;
    std::array<float, 3> funkenY{};
    float funkenBreite = 10;
    float funkenHoehe = 10;
    float funkenRichtung = 0;

    std::array<float, 3> spurX{};
    std::array<float, 3> spurY{};

    float endZeit = 0;
    float endY = 0;
    float endBreite = 0;
    float endSchritt = 0;
};

}  // namespace zentrox
