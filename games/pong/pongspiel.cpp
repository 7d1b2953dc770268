#include "games/pong/pongspiel.h"

#include <cmath>

#include "engine/state/felder.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr int siegPunkte = 10;  // more than these, and two points ahead
constexpr int vorsprung = 1;

constexpr float linieLinks = 34;
constexpr float linieRechts = 596;
constexpr float startLinks = 35;  // the ball's place at the paddle lines
constexpr float startRechts = 595;
constexpr float halberSchläger = 56;  // from its centre; the ball still counts as hit there
constexpr double schlägerWölbung = 32.3;
constexpr float aufschlagDrall = 2;

constexpr double bogen = 620;  // the curve is full at the left edge and gone here
constexpr double viertelkreis = 1.57;
constexpr float kleinsterSprung = 0.1F;
constexpr double verlust = 10;
constexpr double gewinn = 9;

constexpr int tasteO = 'O';
constexpr int tasteP = 'P';
constexpr double schlägerTempo = 2.5;
constexpr double schlägerZuwachs = 25;
constexpr double schlägerAnlauf = 254;  // ticks

constexpr float blickGrenze = 40;  // the computer does not look at a ball nearer to its line

constexpr double gleitTempo = 7;
constexpr double gleitWeite = 136;
constexpr double gleitEnde = 3;
constexpr float fallSchritt = 0.4F;
constexpr float fallFaktorFrei = 0.8F;
constexpr float fallFaktorPrall = 0.5F;
constexpr float fallBasisPrall = 95;
constexpr float fallZeitPrall = -15;
constexpr float fallBoden = 215;
constexpr float fallTiefe = 220;

constexpr TextView titelAnfang = " Du hast keine Chance!!!   'p'=Pause";
constexpr TextView titelWeiter = "Du hast keine Chance!!!   'p'=Pause";
constexpr TextView titelPause = "     !Pause!    'O' drücken, um weiter zu spielen."_t;
constexpr TextView titelSieg = " Freu dich nicht! Das war nur Glück."_t;
constexpr TextView titelNiederlage = " Wie kann man nur so schlecht sein?";

// Values are reckoned in double and kept in single precision.
float einfach(double wert) {
    return static_cast<float>(wert);
}

// A ball without horizontal speed counts as flying to the right.
double vorzeichen(float wert) {
    return wert < 0 ? -1 : 1;
}

double krümmung(float ballX) {
    return std::cos(ballX / bogen * viertelkreis);
}

}  // namespace

// --- the match

void Pongspiel::neuess() {
    titel = titelAnfang;
    spielEnde = false;
    tempoBonus = 1;
    tempoGrenze = Runden(100 - 5.0 * ballDX);
    ballDX = grundTempo;
    ballDY = 0;
    ballX = startLinks;
    ballY = anstoßHöhe;
    tastenDauer = 0;
    drall = aufschlagDrall;
    spielerY = gegnerY = anstoßHöhe;
    takte = {.Timer6 = true};
    pause = false;
    punkteGegner = punkteSpieler = 0;
}

void Pongspiel::punkt(Pongtick& tick) {
    if (2 * punkteSpieler < tempoGrenze) tempoBonus = 2 * punkteSpieler;
    tastenDauer = 0;
    tick.Punkt = true;
    takte.Timer3 = true;
}

void Pongspiel::gewonnen(std::int16_t Ergebnis) {
    const bool spieler = Ergebnis == 1;
    takte = {.Timer4 = !spieler, .Timer5 = spieler};
    spielEnde = true;
    if (spieler) gesiegt = true;
    titel = spieler ? titelSieg : titelNiederlage;
}

bool Pongspiel::Entscheiden(bool sieg) {
    if (spielEnde) return false;
    (sieg ? punkteSpieler : punkteGegner) = siegPunkte + 1;
    gewonnen(sieg ? 1 : 0);
    return true;
}

// --- play

Pongtick Pongspiel::Timer1_Timer(const Tasten& tasten) {
    Pongtick tick;
    if (pause) pausiert(tasten);
    if (!pause) {
        start(tick);
        hoch(tasten, tick);
        runter(tasten, tick);
    }
    if (Gedrückt(tasten, tasteP)) pause = true;
    return tick;
}

void Pongspiel::pausiert(const Tasten& tasten) {
    titel = titelPause;
    if (!Gedrückt(tasten, tasteO)) return;
    pause = false;
    titel = titelWeiter;
}

void Pongspiel::hoch(const Tasten& tasten, Pongtick& tick) {
    if (!Gedrückt(tasten, key::up)) {
        if (tasteHoch) tastenDauer = 0;
        tasteHoch = false;
        return;
    }
    if (tastenDauer > 0) tastenDauer = 0;
    if (spielerY > 0) {
        const double weg = schlägerTempo + schlägerZuwachs * std::sin(-tastenDauer / schlägerAnlauf);
        spielerY = einfach(spielerY - weg);
        tastenDauer -= 1;
    }
    if (spielerY <= 0) tastenDauer = 0;
    tick.Hoch = spielerY;
    tasteHoch = true;
}

void Pongspiel::runter(const Tasten& tasten, Pongtick& tick) {
    if (!Gedrückt(tasten, key::down)) {
        if (tasteRunter) tastenDauer = 0;
        tasteRunter = false;
        return;
    }
    if (tastenDauer < 0) tastenDauer = 0;
    if (spielerY < feldHoehe) {
        const double weg = schlägerTempo + schlägerZuwachs * std::sin(tastenDauer / schlägerAnlauf);
        spielerY = einfach(spielerY + weg);
        tastenDauer += 1;
    }
    if (spielerY >= feldHoehe) tastenDauer = 0;
    tick.Runter = spielerY;
    tasteRunter = true;
}

void Pongspiel::start(Pongtick& tick) {
    if (ballX > linieRechts) rechts(tick);
    if (ballX < linieLinks) links(tick);
    bewegung(tick);
}

// --- the ball

void Pongspiel::bewegung(Pongtick& tick) {
    Ballflug& flug = tick.Flug.emplace(Ballflug{.von = {ballX, ballY}, .DX = ballDX});
    if (ballY < 0 || ballY > feldHoehe) wand(tick);
    const double c = krümmung(ballX);
    ballY = einfach(double{ballY} + ballDY - drall * c);
    ballX = einfach(double{ballX} + ballDX + vorzeichen(ballDX) * tempoBonus / 5);
    flug.nach = {ballX, ballY};
    flug.GegnerSieht = gegnerBewegen();
    austritt(tick);
}

// At a wall the ball trades curve against speed.
void Pongspiel::wand(Pongtick& tick) {
    ballY = ballY > feldHoehe ? feldHoehe : 0;
    tick.Flug->Wand = ballY;
    ballDY = einfach(-double{ballDY} + drall * krümmung(ballX));
    if (ballDY == 0) ballDY = kleinsterSprung;
    if (double{drall} / ballDY < 0) {
        drall = einfach(-double{drall} * std::abs(ballDY) / verlust);
        ballDX = einfach(ballDX / (std::abs(double{drall}) + 1));
    } else {
        wandGewinn();
    }
    if (ballX > linieLinks && ballX < feldBreite - 46) tick.Klänge.emplace_back("wand.wav");
}

void Pongspiel::wandGewinn() {
    drall = einfach(double{drall} * std::abs(ballDY) / gewinn);
    ballDX = einfach(ballDX * (std::abs(double{drall}) / 4 + 1));
    const double bonus = tempoBonus / 5.0;
    const double grenze = tempoGrenze / 5.0 + grundTempo;
    if (std::abs(ballDX) + bonus <= grenze) return;
    // After a match that ended at a fast ball the limit may be below zero: the ball then creeps, but never stands.
    ballDX = einfach(vorzeichen(ballDX) * std::max<double>(grenze - bonus, kleinsterSprung));
}

// Looked at in every step: a ball fast enough to fly past a paddle's line and out of the field in one leaves
// uncounted.
void Pongspiel::austritt(Pongtick& tick) {
    if (ballX < 0) ausgang(Seite::rechts, tick);
    if (ballX > feldBreite) ausgang(Seite::links, tick);
}

// The side that scored serves.
void Pongspiel::ausgang(Seite aufschlag, Pongtick& tick) {
    const bool vonRechts = aufschlag == Seite::rechts;
    ballDY = 0;
    ballDX = vonRechts ? -grundTempo : grundTempo;
    ballX = vonRechts ? startRechts : startLinks;
    ballY = anstoßHöhe;
    if (vonRechts) drall = 0;
    takte.Timer2 = false;
    if (vonRechts) takte.Timer1 = false;
    // A fast ball can leave in the very step that ended the match.
    takte.Timer3 = !spielEnde;
    tick.Aufschlag = aufschlag;
}

// --- the paddles

bool Pongspiel::gegnerBewegen() {
    if (!(ballDX < 0 && ballX < feldBreite / 2 && ballX > blickGrenze)) return false;
    const double weg = 4 + punkteSpieler / 4.0;
    if (ballY < gegnerY)
        gegnerY = einfach(gegnerY - weg);
    else if (ballY > gegnerY)
        gegnerY = einfach(gegnerY + weg);
    else
        gegnerY += 1;
    return true;
}

void Pongspiel::rechts(Pongtick& tick) {
    const float abstand = einfach(double{spielerY} - ballY - 5);
    if (!(std::abs(abstand) < halberSchläger)) return verfehlt(Seite::links, tick);
    getroffen(Seite::rechts, tick);
    abprallen(abstand, grundTempo);
    ballDX = -ballDX;
    const double dauer = tastenDauer;
    drall = einfach(dauer / std::abs(dauer + 0.1) + dauer / 10);
    ballX = startRechts;
}

void Pongspiel::links(Pongtick& tick) {
    const float abstand = einfach(double{gegnerY} - ballY - 5);
    if (!(std::abs(abstand) < halberSchläger)) return verfehlt(Seite::rechts, tick);
    getroffen(Seite::links, tick);
    abprallen(abstand, grundTempo / 2);
    drall = 0;
    ballX = startLinks;
}

void Pongspiel::getroffen(Seite seite, Pongtick& tick) {
    if (tempoBonus < tempoGrenze) ++tempoBonus;
    tick.Klänge.emplace_back("pong.wav");
    tick.Treffer = seite;
}

// The new speed, to the right. The further from the paddle's centre, the steeper the ball, by a cubic law.
void Pongspiel::abprallen(float abstand, float grenze) {
    const double sinus = std::sin(abstand / schlägerWölbung);
    ballDY = einfach(ballDY - 2 * sinus * sinus * sinus);
    // Exactly at the base speed nothing would be left for the way across, so that is too steep as well.
    const float steil = std::abs(ballDY);
    if (steil > grenze || steil == grundTempo) ballDY = std::copysign(grenze - 0.5F, ballDY);
    ballDX = einfach(std::sqrt(double{grundTempo} * grundTempo - double{ballDY} * ballDY));
}

void Pongspiel::verfehlt(Seite punktFür, Pongtick& tick) {
    const bool spieler = punktFür == Seite::rechts;
    std::int32_t& meine = spieler ? punkteSpieler : punkteGegner;
    const std::int32_t& andere = spieler ? punkteGegner : punkteSpieler;
    ++meine;
    tick.Klänge.emplace_back(spieler ? "sisa1.wav" : "juhu2.wav");
    if (meine - andere > vorsprung && meine > siegPunkte) {
        tick.Klänge.emplace_back(spieler ? "dumm.wav" : "juhu.wav");
        return gewonnen(spieler ? 1 : 0);
    }
    if (!spieler) drall = aufschlagDrall;
    takte.Timer1 = false;
    takte.Timer2 = true;
    punkt(tick);
}

// --- between the points

Pongtick Pongspiel::Timer2_Timer() {
    Pongtick tick;
    bewegung(tick);
    return tick;
}

Pongtick Pongspiel::Timer3_Timer() {
    Pongtick tick;
    // A ball too slow to have left the field by now is taken off it.
    if (takte.Timer2) ausgang(ballX < feldBreite / 2 ? Seite::rechts : Seite::links, tick);
    takte.Timer3 = false;
    ballY = anstoßHöhe;
    takte.Timer6 = true;
    return tick;
}

Pongtick Pongspiel::Timer6_Timer() {
    Pongtick tick;
    gleiten(spielerY);
    gleiten(gegnerY);
    fallen(tick);
    const auto da = [this](float y) { return std::abs(double{y} - ballY) < gleitEnde; };
    tick.FallEndet = fallY[0] > fallTiefe && abgeprallt && da(spielerY) && da(gegnerY);
    if (!tick.FallEndet) return tick;
    takte.Timer6 = false;
    takte.Timer1 = true;
    tick.Klänge.emplace_back("pong.wav");
    fallY = {};
    abgeprallt = false;
    fallZeit = 0;
    fallBasis = 0;
    fallFaktor = fallFaktorFrei;
    return tick;
}

// Slower the nearer it is.
void Pongspiel::gleiten(float& y) const {
    if (y > ballY) y = einfach(y - gleitTempo * std::sin((double{y} - ballY) / gleitWeite));
    if (y < ballY) y = einfach(y + gleitTempo * std::sin((double{ballY} - y) / gleitWeite));
}

void Pongspiel::fallen(Pongtick& tick) {
    const double zeit = fallZeit;
    const float neu = einfach(zeit * zeit * fallFaktor + fallBasis);
    fallY = {neu, neu, fallY[1], fallY[2]};
    tick.Fall = fallY;
    fallZeit = einfach(zeit + fallSchritt);
    if (!(neu > fallBoden && fallFaktor == fallFaktorFrei)) return;
    fallZeit = fallZeitPrall;
    tick.Klänge.emplace_back("pong.wav");
    fallBasis = fallBasisPrall;
    fallFaktor = fallFaktorPrall;
    abgeprallt = true;
}

}  // namespace zentrox
