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

constexpr int gehalten = 126;
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
    umgebung_.Titel(titelAnfang);
    s.spielEnde = false;
    s.tempoBonus = 1;
    s.tempoGrenze = Runden(100 - 5.0 * s.ballDX);
    s.ballDX = grundTempo;
    s.ballDY = 0;
    s.ballX = startLinks;
    s.ballY = anstoßHöhe;
    s.tastenDauer = 0;
    s.drall = aufschlagDrall;
    s.spielerY = s.gegnerY = anstoßHöhe;
    s.takte = {.Timer6 = true};
    s.pause = false;
    s.punkteGegner = s.punkteSpieler = 0;
    umgebung_.Punkte(Seite::links, 0);
    umgebung_.Punkte(Seite::rechts, 0);
    bild_.neuesFeld(s);
}

void Pongspiel::punkt() {
    if (2 * s.punkteSpieler < s.tempoGrenze) s.tempoBonus = 2 * s.punkteSpieler;
    s.tastenDauer = 0;
    bild_.punkteZeigen(s);
    s.takte.Timer3 = true;
}

void Pongspiel::gewonnen(std::int16_t Ergebnis) {
    const bool spieler = Ergebnis == 1;
    s.takte.Timer1 = s.takte.Timer2 = s.takte.Timer3 = false;
    s.spielEnde = true;
    if (spieler) umgebung_.SpielerHatGewonnen();
    (spieler ? s.takte.Timer5 : s.takte.Timer4) = true;
    umgebung_.Titel(spieler ? titelSieg : titelNiederlage);
}

// --- play

void Pongspiel::Timer1_Timer() {
    CheckKeys();
    if (s.pause) pausiert();
    if (!s.pause) {
        start();
        hoch();
        runter();
    }
    bild_.spielerNachher(s);
    if (gedrückt(tasteP)) s.pause = true;
    if (s.spielEnde) bild_.feldLeeren();
}

bool Pongspiel::gedrückt(int code) const {
    return Tasten[static_cast<std::size_t>(code)] > gehalten;
}

void Pongspiel::pausiert() {
    umgebung_.Titel(titelPause);
    if (!gedrückt(tasteO)) return;
    s.pause = false;
    umgebung_.Titel(titelWeiter);
}

void Pongspiel::hoch() {
    if (!gedrückt(key::up)) {
        if (s.tasteHoch) s.tastenDauer = 0;
        s.tasteHoch = false;
        return;
    }
    bild_.spielerVorher(s);
    if (s.tastenDauer > 0) s.tastenDauer = 0;
    if (s.spielerY > 0) {
        const double weg = schlägerTempo + schlägerZuwachs * std::sin(-s.tastenDauer / schlägerAnlauf);
        s.spielerY = einfach(s.spielerY - weg);
        s.tastenDauer -= 1;
    }
    if (s.spielerY <= 0) s.tastenDauer = 0;
    bild_.spielerNachher(s);
    s.tasteHoch = true;
}

void Pongspiel::runter() {
    if (!gedrückt(key::down)) {
        if (s.tasteRunter) s.tastenDauer = 0;
        s.tasteRunter = false;
        return;
    }
    bild_.spielerVorher(s);
    if (s.tastenDauer < 0) s.tastenDauer = 0;
    if (s.spielerY < feldHoehe) {
        const double weg = schlägerTempo + schlägerZuwachs * std::sin(s.tastenDauer / schlägerAnlauf);
        s.spielerY = einfach(s.spielerY + weg);
        s.tastenDauer += 1;
    }
    if (s.spielerY >= feldHoehe) s.tastenDauer = 0;
    bild_.spielerNachher(s);
    s.tasteRunter = true;
}

void Pongspiel::start() {
    bild_.schrittBeginnt();
    if (s.ballX > linieRechts) rechts();
    if (s.ballX < linieLinks) links();
    bild_.schlag(s.ballDX > 0 ? Seite::links : Seite::rechts, s);
    bewegung();
}

// --- the ball

void Pongspiel::bewegung() {
    bild_.ballVorher(s);
    if (s.ballY < 0 || s.ballY > feldHoehe) wand();
    const double c = krümmung(s.ballX);
    s.ballY = einfach(double{s.ballY} + s.ballDY - s.drall * c);
    s.ballX = einfach(double{s.ballX} + s.ballDX + vorzeichen(s.ballDX) * s.tempoBonus / 5);
    bild_.ballNachher(s);
    gegnerBewegen();
    austritt();
    bild_.gegnerRuht(s);
}

// At a wall the ball trades curve against speed.
void Pongspiel::wand() {
    s.ballY = s.ballY > feldHoehe ? feldHoehe : 0;
    bild_.spurAnWand(s.ballY);
    s.ballDY = einfach(-double{s.ballDY} + s.drall * krümmung(s.ballX));
    if (s.ballDY == 0) s.ballDY = kleinsterSprung;
    if (double{s.drall} / s.ballDY < 0) {
        s.drall = einfach(-double{s.drall} * std::abs(s.ballDY) / verlust);
        s.ballDX = einfach(s.ballDX / (std::abs(double{s.drall}) + 1));
    } else {
        wandGewinn();
    }
    if (s.ballX > linieLinks && s.ballX < feldBreite - 46) umgebung_.Klang("wand.wav");
}

void Pongspiel::wandGewinn() {
    s.drall = einfach(double{s.drall} * std::abs(s.ballDY) / gewinn);
    s.ballDX = einfach(s.ballDX * (std::abs(double{s.drall}) / 4 + 1));
    const double bonus = s.tempoBonus / 5.0;
    const double grenze = s.tempoGrenze / 5.0 + grundTempo;
    if (std::abs(s.ballDX) + bonus <= grenze) return;
    // After a match that ended at a fast ball the limit may be below zero: the ball then creeps, but never stands.
    s.ballDX = einfach(vorzeichen(s.ballDX) * std::max<double>(grenze - bonus, kleinsterSprung));
}

// Looked at in every step: a ball fast enough to fly past a paddle's line and out of the field in one leaves
// uncounted.
void Pongspiel::austritt() {
    if (s.ballX < 0) ausgang(Seite::rechts);
    if (s.ballX > feldBreite) ausgang(Seite::links);
}

// The side that scored serves.
void Pongspiel::ausgang(Seite aufschlag) {
    const bool vonRechts = aufschlag == Seite::rechts;
    bild_.ballWeg(s);
    s.ballDY = 0;
    s.ballDX = vonRechts ? -grundTempo : grundTempo;
    s.ballX = vonRechts ? startRechts : startLinks;
    s.ballY = anstoßHöhe;
    if (vonRechts) s.drall = 0;
    s.takte.Timer2 = false;
    if (vonRechts) s.takte.Timer1 = false;
    // A fast ball can leave in the very step that ended the match.
    s.takte.Timer3 = !s.spielEnde;
    bild_.aufschlagVon(aufschlag, s);
}

// --- the paddles

void Pongspiel::gegnerBewegen() {
    if (!(s.ballDX < 0 && s.ballX < feldBreite / 2 && s.ballX > blickGrenze)) return;
    bild_.gegnerVorher(s);
    const double weg = 4 + s.punkteSpieler / 4.0;
    if (s.ballY < s.gegnerY)
        s.gegnerY = einfach(s.gegnerY - weg);
    else if (s.ballY > s.gegnerY)
        s.gegnerY = einfach(s.gegnerY + weg);
    else
        s.gegnerY += 1;
    bild_.gegnerNachher(s);
}

void Pongspiel::rechts() {
    const float abstand = einfach(double{s.spielerY} - s.ballY - 5);
    if (!(std::abs(abstand) < halberSchläger)) return verfehlt(Seite::links);
    getroffen();
    abprallen(abstand, grundTempo);
    s.ballDX = -s.ballDX;
    const double dauer = s.tastenDauer;
    s.drall = einfach(dauer / std::abs(dauer + 0.1) + dauer / 10);
    bild_.ballWeg(s);
    s.ballX = startRechts;
    bild_.treffer(Seite::rechts, s);
    CheckKeys();
}

void Pongspiel::links() {
    const float abstand = einfach(double{s.gegnerY} - s.ballY - 5);
    if (!(std::abs(abstand) < halberSchläger)) return verfehlt(Seite::rechts);
    getroffen();
    abprallen(abstand, grundTempo / 2);
    s.drall = 0;
    bild_.ballWeg(s);
    s.ballX = startLinks;
    bild_.treffer(Seite::links, s);
}

void Pongspiel::getroffen() {
    if (s.tempoBonus < s.tempoGrenze) ++s.tempoBonus;
    umgebung_.Klang("pong.wav");
}

// The new speed, to the right. The further from the paddle's centre, the steeper the ball, by a cubic law.
void Pongspiel::abprallen(float abstand, float grenze) {
    const double sinus = std::sin(abstand / schlägerWölbung);
    s.ballDY = einfach(s.ballDY - 2 * sinus * sinus * sinus);
    // Exactly at the base speed nothing would be left for the way across, so that is too steep as well.
    const float steil = std::abs(s.ballDY);
    if (steil > grenze || steil == grundTempo) s.ballDY = std::copysign(grenze - 0.5F, s.ballDY);
    s.ballDX = einfach(std::sqrt(double{grundTempo} * grundTempo - double{s.ballDY} * s.ballDY));
}

void Pongspiel::verfehlt(Seite punktFür) {
    const bool spieler = punktFür == Seite::rechts;
    std::int32_t& meine = spieler ? s.punkteSpieler : s.punkteGegner;
    const std::int32_t& andere = spieler ? s.punkteGegner : s.punkteSpieler;
    ++meine;
    umgebung_.Klang(spieler ? "sisa1.wav" : "juhu2.wav");
    umgebung_.Punkte(punktFür, meine);
    if (meine - andere > vorsprung && meine > siegPunkte) {
        umgebung_.Klang(spieler ? "dumm.wav" : "juhu.wav");
        return gewonnen(spieler ? 1 : 0);
    }
    if (!spieler) s.drall = aufschlagDrall;
    s.takte.Timer1 = false;
    s.takte.Timer2 = true;
    punkt();
}

// --- between the points

void Pongspiel::Timer2_Timer() {
    bewegung();
    bild_.beideRuhen(s);
}

void Pongspiel::Timer3_Timer() {
    // A ball too slow to have left the field by now is taken off it.
    if (s.takte.Timer2) ausgang(s.ballX < feldBreite / 2 ? Seite::rechts : Seite::links);
    bild_.punkteWeg();
    s.takte.Timer3 = false;
    s.ballY = anstoßHöhe;
    s.takte.Timer6 = true;
}

void Pongspiel::Timer6_Timer() {
    bild_.fallVorher(s);
    gleiten(s.spielerY);
    gleiten(s.gegnerY);
    fallen();
    bild_.fallNachher(s);
    const auto da = [this](float y) { return std::abs(double{y} - s.ballY) < gleitEnde; };
    if (!(s.fallY[0] > fallTiefe && s.abgeprallt && da(s.spielerY) && da(s.gegnerY))) return;
    bild_.fallEndet(s);
    s.takte.Timer6 = false;
    s.takte.Timer1 = true;
    umgebung_.Klang("pong.wav");
    s.fallY = {};
    s.abgeprallt = false;
    s.fallZeit = 0;
    s.fallBasis = 0;
    s.fallFaktor = fallFaktorFrei;
}

// Slower the nearer it is.
void Pongspiel::gleiten(float& y) const {
    if (y > s.ballY) y = einfach(y - gleitTempo * std::sin((double{y} - s.ballY) / gleitWeite));
    if (y < s.ballY) y = einfach(y + gleitTempo * std::sin((double{s.ballY} - y) / gleitWeite));
}

void Pongspiel::fallen() {
    const double zeit = s.fallZeit;
    const float neu = einfach(zeit * zeit * s.fallFaktor + s.fallBasis);
    s.fallY = {neu, neu, s.fallY[1], s.fallY[2]};
    s.fallZeit = einfach(zeit + fallSchritt);
    if (!(neu > fallBoden && s.fallFaktor == fallFaktorFrei)) return;
    s.fallZeit = fallZeitPrall;
    umgebung_.Klang("pong.wav");
    s.fallBasis = fallBasisPrall;
    s.fallFaktor = fallFaktorPrall;
    s.abgeprallt = true;
}

}  // namespace zentrox
