// How Pong looks: one black field on which small pictures are painted and small black boxes erase them again. The
// punch of a paddle with its sparks, the trail of the ball, the score and the picture at the end decide nothing.
#pragma once

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

// From one state of a match to the next, and what happened between them.
struct Pongzug {
    const Pongspiel& vorher;
    const Pongtick& tick;
    const Pongspiel& jetzt;
};

class Pongbild {
public:
    // The surface must outlive it.
    Pongbild(Surface& picture1, Pongbilder bilder);

    // A black field with both paddles; all effects start anew.
    void NeuesFeld(const Pongspiel& s);
    // A tick of the timer of that number.
    void Timer1_Timer(const Pongzug& zug);
    void Timer2_Timer(const Pongzug& zug);
    void Timer3_Timer(const Pongzug& zug);
    void Timer6_Timer(const Pongzug& zug);
    // One step of the picture at the end of a match; `sieger` has won.
    void Endbild(Seite sieger);

private:
    void start(const Pongzug& zug);
    void bewegung(const Pongzug& zug);
    void schlag(Seite seite, const Pongspiel& s);
    void treffer(Seite seite, float ballY);
    void schwarz(double x1, double y1, double x2, double y2);
    void schlägerLöschen(double x, double y);
    void malen(const Bitmap& bild, double x, double y, Op op = Op::plain);
    void schlagAus(Seite seite, const Pongspiel& s);
    void schlagEndet(const Pongspiel& s);
    void funkenBewegen();
    void funkenLöschen();
    void funkenMalen(Seite seite);
    void ballLöschen(Ballort ort);
    void ballWeg(Ballort ort);
    void ballMalen(Ballort ort);
    void spurLöschen();
    void spurBewegen(const Ballflug& flug, std::int32_t tempoBonus);
    void aufschlag(const Pongzug& zug, Ballort ort);
    void gegnerMalen(float y);
    void spielerMalen(float y);
    void spielerSetzen(float y);
    void beideRuhen(const Pongspiel& s);
    void fallLöschen(const std::array<float, 4>& höhen, float x);
    void punkteZeigen(const Pongspiel& s);
    void punkteDrucken(const Pongspiel& s);
    void punkteWeg();
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
