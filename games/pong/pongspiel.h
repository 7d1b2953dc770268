// The rules of Pong: a ball whose curve depends on where it is, two paddles, a match to eleven. The left paddle is
// the computer, Kessa, the right one the player, Velmix. All lengths are pixels of the field, all speeds per tick;
// nothing here draws, and nothing depends on the clock.
#pragma once

#include <array>
#include <cstdint>

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

// All that a match knows.
struct Pongstand {
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
    Takte takte;

    // The drop of the ball before a serve.
    float fallZeit = 0;
    float fallBasis = 0;
    float fallFaktor = 0.8F;
    std::array<float, 4> fallY{};  // heights, the newest first
    bool abgeprallt = false;
};

// What a match shows, each call at its place within a step. What is not overridden shows nothing.
class Pongansicht {
public:
    virtual ~Pongansicht() = default;
    // A black field with both paddles; all effects start anew.
    virtual void neuesFeld(const Pongstand& /*s*/) {}
    virtual void feldLeeren() {}
    virtual void schrittBeginnt() {}
    // A paddle has hit the ball, or is about to serve it.
    virtual void treffer(Seite /*seite*/, const Pongstand& /*s*/) {}
    // One step of the hit animation, if one runs.
    virtual void schlag(Seite /*seite*/, const Pongstand& /*s*/) {}
    // Before the ball moves: it goes away, the trail moves up.
    virtual void ballVorher(const Pongstand& /*s*/) {}
    virtual void spurAnWand(float /*y*/) {}
    virtual void ballNachher(const Pongstand& /*s*/) {}
    // The ball will be put elsewhere: to a paddle's line, or for the serve from a side.
    virtual void ballWeg(const Pongstand& /*s*/) {}
    virtual void aufschlagVon(Seite /*seite*/, const Pongstand& /*s*/) {}
    virtual void gegnerVorher(const Pongstand& /*s*/) {}
    virtual void gegnerNachher(const Pongstand& /*s*/) {}
    virtual void gegnerRuht(const Pongstand& /*s*/) {}
    virtual void spielerVorher(const Pongstand& /*s*/) {}
    virtual void spielerNachher(const Pongstand& /*s*/) {}
    virtual void beideRuhen(const Pongstand& /*s*/) {}
    virtual void punkteZeigen(const Pongstand& /*s*/) {}
    virtual void punkteWeg() {}
    // A step of the drop, and its end.
    virtual void fallVorher(const Pongstand& /*s*/) {}
    virtual void fallNachher(const Pongstand& /*s*/) {}
    virtual void fallEndet(const Pongstand& /*s*/) {}
    // One step of the picture at the end of a match; `sieger` has won.
    virtual void endbild(Seite /*sieger*/) {}
};

// The rest of what a match asks for.
class Pongumgebung {
public:
    virtual ~Pongumgebung() = default;
    // All keys by their virtual code; a value above 126 is a held one.
    virtual std::array<std::uint8_t, 256> Tastenstand() = 0;
    virtual void Klang(TextView /*datei*/) {}
    virtual void Titel(TextView /*text*/) {}
    // The number of points of one side has changed.
    virtual void Punkte(Seite /*seite*/, std::int32_t /*punkte*/) {}
    virtual void SpielerHatGewonnen() {}
};

class Pongspiel {
public:
    // Both must outlive it. A match begins with `neuess`.
    Pongspiel(Pongansicht& ansicht, Pongumgebung& umgebung) : bild_(ansicht), umgebung_(umgebung) {}

    const Pongstand& stand() const { return s; }
    // For tests and benchmarks: goes on from there.
    void stellen(const Pongstand& stand) { s = stand; }

    // Starts a match, at any moment.
    void neuess();

    // What the timers do.
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void Timer4_Timer() { bild_.endbild(Seite::links); }
    void Timer5_Timer() { bild_.endbild(Seite::rechts); }
    void Timer6_Timer();

private:
    void start();
    void bewegung();
    void wand();
    void wandGewinn();
    void gegnerBewegen();
    void austritt();
    void ausgang(Seite aufschlag);
    void rechts();
    void links();
    void getroffen();
    void abprallen(float abstand, float grenze);
    void verfehlt(Seite punktFür);
    void punkt();
    void gewonnen(std::int16_t Ergebnis);
    void CheckKeys() { Tasten = umgebung_.Tastenstand(); }
    bool gedrückt(int code) const;
    void pausiert();
    void hoch();
    void runter();
    void gleiten(float& y) const;
    void fallen();

    Pongansicht& bild_;
    Pongumgebung& umgebung_;
    Pongstand s;
    std::array<std::uint8_t, 256> Tasten{};
};

}  // namespace zentrox
