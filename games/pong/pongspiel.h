// The rules of Pong, a plain value: a ball whose curve depends on where it is, two paddles, a match to eleven. The
// left paddle is the computer, Kessa, the right one the player, Velmix. All lengths are pixels of the field, all
// speeds per tick.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "games/base/tasten.h"
#include "platform/values/text.h"

namespace zentrox {

enum class Seite { links, rechts };

constexpr float feldBreite = 640;
constexpr float feldHoehe = 440;
constexpr float grundTempo = 5;
constexpr float anstoßHöhe = 215;  // where ball and paddles are at a serve

// Which of the game's timers run. `Timer3` lasts `punkteDauer`, the others tick as fast as timers do.
struct Takte {
    bool Timer1 = false;  // the ball is in play
    bool Timer2 = false;  // it flies out of the field after a point
    bool Timer3 = false;  // the score is shown
    bool Timer4 = false;  // the computer has won
    bool Timer5 = false;  // the player has won
    bool Timer6 = false;  // serve: the paddles glide to the middle, the ball drops in
    friend bool operator==(const Takte&, const Takte&) = default;
};
constexpr int punkteDauer = 1500;  // milliseconds

// The ball's upper left corner.
struct Ballort {
    float X = 0;
    float Y = 0;
};

// A step of the ball.
struct Ballflug {
    Ballort von;
    float DX = 0;  // across, at its start
    Ballort nach;
    std::optional<float> Wand;  // it has met a wall at this height
    bool GegnerSieht = false;   // the computer's paddle has followed it
};

// What has happened in a tick, as far as the match before and after it doesn't show it.
struct Pongtick {
    std::vector<TextView> Klänge;    // effects
    std::optional<Seite> Treffer;    // this paddle has hit the ball
    bool Punkt = false;              // somebody has scored, and the match goes on
    std::optional<Ballflug> Flug;    // the ball has moved
    std::optional<Seite> Aufschlag;  // it has left the field, and this side serves
    std::optional<float> Hoch;       // where the player's paddle stood after the key for up
    std::optional<float> Runter;     // and after the one for down
    std::array<float, 4> Fall{};     // the heights of the drop, the newest first
    bool FallEndet = false;
};

struct Pongspiel {
    float ballX = 35;  // of the ball's upper left corner
    float ballY = anstoßHöhe;
    float ballDX = 0;  // without the bonus
    float ballDY = 0;
    float drall = 2;                 // how strongly the flight is bent
    std::int32_t tempoBonus = 1;     // fifths of a pixel per tick
    std::int32_t tempoGrenze = 100;  // upper limit of `tempoBonus`
    std::int32_t punkteGegner = 0;
    std::int32_t punkteSpieler = 0;
    float spielerY = anstoßHöhe;  // of the paddles' centres
    float gegnerY = anstoßHöhe;
    float tastenDauer = 0;   // ticks that a paddle key has been held, negative for up
    bool tasteHoch = false;  // held at the tick before
    bool tasteRunter = false;
    bool pause = false;
    bool spielEnde = false;
    bool gesiegt = false;  // the player has won a match; the next one takes nothing back
    Takte takte;
    TextView titel;  // of the window

    // The drop of the ball before a serve.
    float fallZeit = 0;
    float fallBasis = 0;
    float fallFaktor = 0.8F;
    std::array<float, 4> fallY{};  // heights, the newest first
    bool abgeprallt = false;

    // Starts a match, at any moment. The first of a window as well.
    void neuess();

    // Ends the match with eleven points for one side. False if it is over.
    bool Entscheiden(bool sieg);

    // What the timers do. At the end of a match nothing is left to decide, so 4 and 5 have nothing to do here.
    Pongtick Timer1_Timer(const Tasten& tasten);
    Pongtick Timer2_Timer();
    Pongtick Timer3_Timer();
    Pongtick Timer6_Timer();

private:
    void start(Pongtick& tick);
    void bewegung(Pongtick& tick);
    void wand(Pongtick& tick);
    void wandGewinn();
    bool gegnerBewegen();
    void austritt(Pongtick& tick);
    void ausgang(Seite aufschlag, Pongtick& tick);
    void rechts(Pongtick& tick);
    void links(Pongtick& tick);
    void getroffen(Seite seite, Pongtick& tick);
    void abprallen(float abstand, float grenze);
    void verfehlt(Seite punktFür, Pongtick& tick);
    void punkt(Pongtick& tick);
    void gewonnen(std::int16_t Ergebnis);
    void pausiert(const Tasten& tasten);
    void hoch(const Tasten& tasten, Pongtick& tick);
    void runter(const Tasten& tasten, Pongtick& tick);
    void gleiten(float& y) const;
    void fallen(Pongtick& tick);
};

}  // namespace zentrox
