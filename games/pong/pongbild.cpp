#include "games/pong/pongbild.h"

#include <algorithm>
#include <cmath>

#include "engine/state/felder.h"
#include "platform/codec/pictures.h"

namespace zentrox {

namespace {

constexpr float ruheSpieler = 610;
constexpr float ruheGegner = 17;
constexpr float halbeHöhe = 50;  // of a paddle
constexpr float saum = 3;        // how far erasing reaches around a thing
constexpr float ballSeite = 10;

constexpr float schlagEnde = 105;
constexpr float schlagVor = 20;    // up to here the paddle goes forward
constexpr float spurAb = 20;       // behind this the trail shows
constexpr float funkenSeite = 10;  // at first
constexpr float funkenSchwund = 0.4F;
constexpr float richtungRechts = 1.57F;

constexpr float schriftNormal = 22;
constexpr float schriftGroß = 26;

// What the lead of the computer does to the score; what is not there stays as it was.
struct Punktestil {
    int vorsprung;
    float schrift;  // points; 0 for unchanged
    std::optional<Colour> farbe;
};
const std::array punktestile{
    Punktestil{5, schriftGroß, std::nullopt},  Punktestil{4, schriftNormal, Colour{255, 0, 0}},
    Punktestil{3, 0, Colour{219, 37, 40}},     Punktestil{2, 0, Colour{183, 76, 80}},
    Punktestil{1, 0, Colour{147, 112, 120}},   Punktestil{0, 0, Colour{129, 129, 120}},
    Punktestil{-1, 0, Colour{112, 147, 120}},  Punktestil{-2, 0, Colour{76, 183, 80}},
    Punktestil{-3, 0, Colour{37, 219, 40}},    Punktestil{-4, schriftNormal, Colour{0, 255, 0}},
    Punktestil{-5, schriftGroß, std::nullopt},
};

constexpr float endzeitAnfang = 48;
constexpr float endHöhe = 50;
constexpr float endWeite = 300;

float einfach(double wert) {
    return static_cast<float>(wert);
}

double endMitte(float endZeit) {
    return feldBreite / 2 + 200 * std::cos(endZeit / 3.0);
}

Point gerundet(double x, double y) {
    return {Runden(x), Runden(y)};
}

}  // namespace

Pongbilder PongbilderLaden(const Files& files, TextView pfad) {
    const auto lade = [&](TextView datei) { return loadPicture(files, Text(pfad) + Text(datei)); };
    return {.Image1 = {lade("1(0).bmp"), lade("1(1).bmp"), lade("1(2).bmp"), lade("1(3).bmp")},
            .Image4 = lade("4.bmp"),
            .Image5 = lade("5.bmp"),
            .Image7 = {lade("70.bmp"), lade("71.bmp")},
            .Image8 = lade("8.bmp"),
            .Image9 = lade("91.bmp")};
}

Pongbild::Pongbild(Surface& picture1, Pongbilder bilder) : Picture1(picture1), bilder_(std::move(bilder)) {
    Picture1.font = {"Arial", schriftNormal, true};
}

void Pongbild::schwarz(double x1, double y1, double x2, double y2) {
    Picture1.box(gerundet(x1, y1), gerundet(x2, y2), black);
}

// The place is rounded as a whole, like the paddle's own; corners rounded each for itself would leave a column.
void Pongbild::schlägerLöschen(double x, double y) {
    const Point at = gerundet(x, y);
    schwarz(at.x - 3, at.y - 53, at.x + 13, at.y + 53);
}

void Pongbild::malen(const Bitmap& bild, double x, double y, Op op) {
    Picture1.copy(bild, bild.bounds(), gerundet(x, y), op);
}

// --- the ticks

void Pongbild::NeuesFeld(const Pongspiel& s) {
    Picture1.font.points = schriftNormal;
    Picture1.setBack(black);
    Picture1.clear();
    spielerX = ruheSpieler;
    spielerYAlt = s.spielerY;
    endSchritt = 0.05F;
    schlagWeg = 0;
    schlagLaeuft = false;
    const float zeit2 = schlagZeit2;
    treffer(Seite::links, s.ballY);
    schlagZeit2 = zeit2;
    spurY = {s.ballY, s.ballY, s.ballY};
    beideRuhen(s);
}

void Pongbild::Timer1_Timer(const Pongzug& zug) {
    if (zug.tick.Flug) start(zug);
    for (const auto& y : {zug.tick.Hoch, zug.tick.Runter})
        if (y) spielerSetzen(*y);
    spielerMalen(zug.jetzt.spielerY);
    if (zug.jetzt.spielEnde) schwarz(0, 0, 640, 450);
}

void Pongbild::start(const Pongzug& zug) {
    const auto& [vorher, tick, jetzt] = zug;
    if (endZeit > 0) schwarz(feldBreite / 2 - 203, 212, feldBreite / 2 + 203, 278);
    endZeit = endzeitAnfang;
    if (tick.Punkt) punkteZeigen(jetzt);
    if (tick.Treffer) {
        ballWeg({vorher.ballX, vorher.ballY});
        treffer(*tick.Treffer, vorher.ballY);
    }
    schlag(tick.Flug->DX > 0 ? Seite::links : Seite::rechts, vorher);
    bewegung(zug);
}

void Pongbild::bewegung(const Pongzug& zug) {
    const auto& [vorher, tick, jetzt] = zug;
    const Ballflug& flug = *tick.Flug;
    ballLöschen(flug.von);
    MoveBigPartikel1();
    if (jetzt.takte.Timer3) punkteDrucken(jetzt);
    if (!(schlagZeit >= 10 && schlagZeit <= 20)) spurLöschen();
    spurBewegen(flug, jetzt.tempoBonus);
    if (flug.Wand) spurY.fill(*flug.Wand);
    ballMalen(flug.nach);
    if (flug.GegnerSieht) {
        schwarz(14, vorher.gegnerY - 58, 30, vorher.gegnerY + 58);
        gegnerMalen(jetzt.gegnerY);
    }
    if (tick.Aufschlag) aufschlag(zug, flug.nach);
    if (!schlagLaeuft) gegnerMalen(jetzt.gegnerY);
}

void Pongbild::Timer2_Timer(const Pongzug& zug) {
    bewegung(zug);
    beideRuhen(zug.jetzt);
}

void Pongbild::Timer3_Timer(const Pongzug& zug) {
    if (zug.tick.Aufschlag) aufschlag(zug, {zug.vorher.ballX, zug.vorher.ballY});
    punkteWeg();
}

void Pongbild::Timer6_Timer(const Pongzug& zug) {
    const auto& [vorher, tick, jetzt] = zug;
    schwarz(14, vorher.gegnerY - 53, 30, vorher.gegnerY + 53);
    schwarz(607, vorher.spielerY - 53, 623, vorher.spielerY + 53);
    fallLöschen(vorher.fallY, vorher.ballX);
    beideRuhen(jetzt);
    spielerYAlt = jetzt.spielerY;
    constexpr std::array<std::size_t, 4> bild{0, 0, 1, 2};  // the older, the paler
    for (std::size_t i = bild.size(); i-- > 0;) malen(bilder_.Image1[bild[i]], jetzt.ballX, tick.Fall[i]);
    if (tick.FallEndet) fallLöschen(tick.Fall, jetzt.ballX);
}

// --- a hit

void Pongbild::treffer(Seite seite, float ballY) {
    if (schlagLaeuft) funkenLöschen();
    schlagLaeuft = true;
    funkenRichtung = seite == Seite::rechts ? richtungRechts : -richtungRechts;
    funkenX = seite == Seite::rechts ? 602.0F : 28.0F;
    funkenY.fill(ballY);
    funkenBreite = funkenHoehe = funkenSeite;
    schlagZeit = 0;
    if (seite == Seite::rechts) schlagZeit2 = 0;
}

// The paddle on the side from which the ball flies punches forward and draws back slowly.
void Pongbild::schlag(Seite seite, const Pongspiel& s) {
    if (!schlagLaeuft) return;
    schlagAus(seite, s);
    schlagWeg += schlagZeit < schlagVor ? 2.0F : -0.5F;
    funkenLöschen();
    funkenBewegen();
    funkenMalen(seite);
    if (schlagZeit == schlagEnde) schlagEndet(s);
}

void Pongbild::schlagAus(Seite seite, const Pongspiel& s) {
    spielerX = ruheSpieler;
    if (seite == Seite::links) {
        schlägerLöschen(gegnerX, s.gegnerY);
        gegnerX = ruheGegner + schlagWeg;
        malen(bilder_.Image4, gegnerX, s.gegnerY - halbeHöhe);
    } else {
        schwarz(spielerX - 33, s.spielerY - 203, spielerX + 43, s.spielerY + 203);
        spielerX = ruheSpieler - schlagWeg;
        spielerMalen(s.spielerY);
    }
}

// The steps of the counters are whole radians and more, which makes the sparks flicker as they fall.
void Pongbild::funkenBewegen() {
    schlagZeit += 5;
    schlagZeit2 += 10;
    funkenX = einfach(funkenX - 3 * std::sin((double{schlagZeit} + 100) * funkenRichtung / 100));
    funkenBreite -= funkenSchwund;
    funkenHoehe -= funkenSchwund;
    const double zittern = std::sin(double{schlagZeit});
    funkenY[0] = einfach(funkenY[0] - 5 * zittern + 2);
    funkenY[1] = einfach(funkenY[1] - 3 * zittern + 5);
    funkenY[2] = einfach(funkenY[2] - 10 * std::sin(double{schlagZeit2}) + 4);
}

void Pongbild::funkenLöschen() {
    for (const float y : funkenY)
        schwarz(funkenX - saum, y - saum, funkenX + funkenBreite + saum, y + funkenHoehe + saum);
}

void Pongbild::funkenMalen(Seite seite) {
    const Bitmap& bild = bilder_.Image7[seite == Seite::links ? 0 : 1];
    const Size größe{Runden(funkenBreite), Runden(funkenHoehe)};
    for (const float y : funkenY) Picture1.stretch(bild, bild.bounds(), {gerundet(funkenX, y), größe});
}

void Pongbild::schlagEndet(const Pongspiel& s) {
    // A paddle that was hit while it still punched is further out than the boxes below reach.
    schlägerLöschen(gegnerX, s.gegnerY);
    spielerX = ruheSpieler;
    gegnerX = ruheGegner;
    schwarz(gegnerX - 23, s.gegnerY - 53, gegnerX + 23, s.gegnerY + 53);
    schwarz(spielerX - 23, s.spielerY - 103, spielerX + 33, s.spielerY + 103);
    funkenLöschen();
    beideRuhen(s);
    schlagLaeuft = false;
    schlagWeg = 0;
}

// --- the ball

void Pongbild::ballLöschen(Ballort ort) {
    schwarz(ort.X - saum, ort.Y - saum, ort.X + ballSeite + saum, ort.Y + ballSeite + saum);
}

void Pongbild::spurLöschen() {
    for (std::size_t i = 0; i < spurX.size(); ++i) ballLöschen({spurX[i], spurY[i]});
}

void Pongbild::ballWeg(Ballort ort) {
    ballLöschen(ort);
    spurLöschen();
}

void Pongbild::spurBewegen(const Ballflug& flug, std::int32_t tempoBonus) {
    const double k = double{flug.DX} * (tempoBonus + 5) / 48;
    const auto folge = [](double vorn, double hinten) { return einfach(vorn + 0.5 * (vorn - hinten)); };
    spurY = {folge(flug.von.Y, spurY[0]), folge(spurY[0], spurY[1]), folge(spurY[1], spurY[2])};
    spurX = {einfach(flug.von.X + k), einfach(spurX[0] + k), einfach(spurX[1] + k)};
}

void Pongbild::ballMalen(Ballort ort) {
    malen(bilder_.Image1[0], ort.X, ort.Y, Op::bitOr);
    if (schlagZeit <= spurAb) return;
    for (std::size_t i = spurX.size(); i-- > 0;) malen(bilder_.Image1[i + 1], spurX[i], spurY[i], Op::bitOr);
}

// The ball leaves `ort` and comes up at a paddle's line.
void Pongbild::aufschlag(const Pongzug& zug, Ballort ort) {
    ballWeg(ort);
    spurX.fill(zug.jetzt.ballX);
    spurY.fill(zug.jetzt.ballY);
    treffer(*zug.tick.Aufschlag, zug.jetzt.ballY);
    schlagZeit2 = 0;
}

// --- the paddles

void Pongbild::gegnerMalen(float y) {
    malen(bilder_.Image4, ruheGegner, y - halbeHöhe);
}

void Pongbild::spielerMalen(float y) {
    malen(bilder_.Image5, spielerX, y - halbeHöhe);
    spielerYAlt = y;
}

void Pongbild::spielerSetzen(float y) {
    schlägerLöschen(spielerX, spielerYAlt);
    spielerMalen(y);
}

void Pongbild::beideRuhen(const Pongspiel& s) {
    gegnerMalen(s.gegnerY);
    malen(bilder_.Image5, ruheSpieler, s.spielerY - halbeHöhe);
}

// --- the score

void Pongbild::MoveBigPartikel1() {
    const double schrift = Picture1.font.points;
    Picture1.currentX = Runden(feldBreite / 2 - 2 * schrift);
    Picture1.currentY = Runden(feldHoehe / 2 - 2 * schrift);
}

void Pongbild::punkteZeigen(const Pongspiel& s) {
    const int vorsprung = s.punkteGegner - s.punkteSpieler;
    for (const Punktestil& stil : punktestile) {
        if (stil.vorsprung != vorsprung) continue;
        if (stil.schrift > 0) Picture1.font.points = stil.schrift;
        if (stil.farbe) Picture1.foreground = *stil.farbe;
    }
    MoveBigPartikel1();
    punkteDrucken(s);
}

void Pongbild::punkteDrucken(const Pongspiel& s) {
    Picture1.print(" " + std::to_string(s.punkteGegner) + " : " + std::to_string(s.punkteSpieler));
}

void Pongbild::punkteWeg() {
    MoveBigPartikel1();
    const Point at{Picture1.currentX, Picture1.currentY};
    schwarz(at.x - 3, at.y - 3, at.x + 153, at.y + 53);
}

void Pongbild::fallLöschen(const std::array<float, 4>& höhen, float x) {
    for (const float y : höhen) schwarz(x, y, x + ballSeite, y + ballSeite);
}

// --- the end: the picture turns about its upright axis and wanders over the field

void Pongbild::Endbild(Seite sieger) {
    endbildLöschen(endMitte(endZeit));
    endZeit += endSchritt;
    endBreite = einfach(endWeite * std::sin(double{endZeit}));
    if (endBreite != 0 && std::abs(endBreite) < 1) endBreite = 1;
    endY = einfach(200 + 200 * std::sin(endZeit / 4.0));
    const Bitmap& bild = sieger == Seite::links ? bilder_.Image8 : bilder_.Image9;
    const Point at = gerundet(endMitte(endZeit) - endBreite / 2.0, endY);
    Picture1.stretch(bild, bild.bounds(), {at, Size{Runden(endBreite), Runden(endHöhe)}});
}

// One pixel more at each side, since the picture's edge and its width are rounded apart.
void Pongbild::endbildLöschen(double x0) {
    const double halb = std::abs(endBreite) / 2.0 + 1;
    schwarz(x0 - halb, endY, x0 + halb, endY + endHöhe);
    schwarz(endZeit - 10, endY - 10, endZeit + 290, endY + 50);
}

}  // namespace zentrox
