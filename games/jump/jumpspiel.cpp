#include "games/jump/jumpspiel.h"

#include <cmath>
#include <utility>

#include "engine/state/felder.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr float schwerkraft = 0.5F;
constexpr float letztesX = Kachel * (Levelspalten - 1);  // of a body in the last column
constexpr float zielY = 288;                             // of the figure that stands on the ground there
constexpr float spielerBreite = Spielergröße.w;
constexpr float spielerHoehe = Spielergröße.h;
constexpr float grubenY = Jumpfeld.h - Spielergröße.h;
constexpr std::int32_t nachlauf = 5;
constexpr double hubSchritt = 0.021;
constexpr std::int32_t todesTicks = 55;
constexpr std::int32_t siegTicks = 500;
constexpr std::int32_t siegBildTicks = 12;

constexpr float schritttempo = 3;
constexpr float luftSchub = 0.25F;
constexpr float luftBremse = 0.2F;
constexpr float sprungVY = -11;
constexpr float aufgabeVY = -12;
constexpr float grubenVY = -22;
constexpr float trefferVY = -5;
constexpr float duckVY = -1.5F;  // rising faster than this shows the frame of the jump

// Where the figure stands on the screen while the view can follow it.
constexpr std::int32_t sichtLinks = 150;
constexpr std::int32_t sichtRechts = 250;

// Above these the row indexes would fall below 0: nothing blocks there.
constexpr float obenFüße = -119;
constexpr float obenUnten = -117;
constexpr float obenMitte = -94;
constexpr float obenOben = -47;

}  // namespace

bool Jumpspiel::CheckLinksundRechts(float X, float Y, float Tempo, std::int32_t Breite, std::int32_t Hoehe) const {
    const float s = X + Tempo;
    if (s < 0 || s > letztesX) return true;
    const std::int32_t spalte = Runden(Tempo > 0 ? s + static_cast<float>(Breite) : s) / Kachel;
    const auto fest = [&](float y) { return Karte.fest(spalte, Runden(y) / Kachel); };
    return (Hoehe > 2 && Y > obenUnten && fest(Y + 95)) || (Hoehe > 1 && Y > obenMitte && fest(Y + 47)) ||
           (Y > obenOben && fest(Y));
}

Jumptick Jumpspiel::Tick(const Tasten& tasten, Random& zufall) {
    Lauf lauf{.tasten = tasten, .zufall = zufall, .tick = {}};
    Funken.Altern();
    ErsterTick = false;
    for (auto& g : Gegner)
        if (g.Lebt) gegnerBewegen(g);
    SpielerVY += schwerkraft;
    SpielerY += SpielerVY;
    if (TotZaehler == 0) {
        grube();
        berührungen(lauf);
    }
    if (TotZaehler > 0)
        sterben(lauf);
    else
        leben(lauf);
    if (SiegZaehler > 0)
        feiern(lauf);
    else
        ziel(lauf);
    sichtbarkeit();
    Funken.Bewegen();
    return std::move(lauf.tick);
}

// --- enemies

void Jumpspiel::gegnerBewegen(zentrox::Gegner& g) {
    if (++g.BildZeit >= g.Art().BildTicks) {
        g.BildZeit = 0;
        if (++g.Bild > g.Art().LetztesBild) g.Bild = 0;
    }
    switch (g.Art().Gangart) {
        case Gangart::geht: return gehen(g);
        case Gangart::sinkt: return sinken(g);
        case Gangart::patrouilliert: return patrouillieren(g);
    }
}

// It knows its own row only, so it walks over gaps.
void Jumpspiel::gehen(zentrox::Gegner& g) {
    if (CheckLinksundRechts(g.X, g.Y, g.VX, g.Art().Breite, 1)) {
        g.VX = -g.VX;
        g.Blick = g.VX > 0 ? g.Art().Spiegelung() : 0;
    } else {
        g.X += g.VX;
    }
}

void Jumpspiel::sinken(zentrox::Gegner& g) {
    Hubwinkel += hubSchritt;
    const float s = static_cast<float>(std::sin(Hubwinkel));
    g.Y += s;
    g.Hub += s;
    g.Blick = SpielerX + spielerBreite / 2 >= g.X ? g.Art().Spiegelung() : 0;
}

void Jumpspiel::patrouillieren(zentrox::Gegner& g) const {
    g.X += g.VX;
    if (g.VX < 0 && g.X <= g.LinksGrenze) {
        g.VX = -g.VX;
        g.Blick = g.Art().Spiegelung();
    } else if (g.VX >= 0 && g.X >= g.RechtsGrenze) {
        g.VX = -g.VX;
        g.Blick = 0;
    }
}

// --- pits and contacts

void Jumpspiel::grube() {
    if (SpielerY < grubenY) return;
    SpielerY = grubenY;
    SpielerVY = grubenVY;
    TotZaehler = 1;
}

void Jumpspiel::berührungen(Lauf& lauf) {
    for (auto& g : Gegner)
        if (g.Lebt) berührung(g, lauf);
}

void Jumpspiel::berührung(zentrox::Gegner& g, Lauf& lauf) {
    const float breite = static_cast<float>(g.Art().Breite);
    const float unten = g.Y + static_cast<float>(g.Art().Hoehe);
    const float tritt = g.Y + static_cast<float>(g.Art().TrittHoehe);
    const float füße = SpielerY + spielerHoehe;
    if (SpielerX + spielerBreite <= g.X || g.X + breite <= SpielerX) return;
    if (füße > tritt && SpielerY < unten) {
        SpielerVY = trefferVY;
        TotZaehler = 1;
    } else if (füße >= g.Y && füße <= tritt) {
        zertreten(g, lauf);
    }
}

void Jumpspiel::zertreten(zentrox::Gegner& g, Lauf& lauf) {
    const float rechts = g.X + static_cast<float>(g.Art().Breite);
    const float unten = g.Y + static_cast<float>(g.Art().Hoehe);
    funken(lauf, 5, g.X, g.Y, rechts, unten, true);
    lauf.tick.Klänge.push_back("drip.wav");
    g.Lebt = false;
    AmBoden = 1;
    BodenNachlauf = nachlauf;
    SpielerVY = -std::fabs(SpielerVY) / 2;
}

// --- the figure

// It passes through everything, and the view stands still.
void Jumpspiel::sterben(Lauf& lauf) {
    if (TotZaehler == 1) {
        lauf.tick.Klänge.push_back("e_laugh.wav");
        TotZaehler = 2;
    }
    if (SpielerY > Jumpfeld.h) {
        SpielerY = Jumpfeld.h + 1;
        ++TotZaehler;
    } else {
        funken(lauf, 1, SpielerX + 20, SpielerY, SpielerX + 28, SpielerY + 48, true);
    }
    if (TotZaehler == todesTicks) {
        Ergebnis = false;
        Ende = 1;
    }
}

void Jumpspiel::leben(Lauf& lauf) {
    if (SiegZaehler == 0) SpielerBild = SpielerVY < duckVY || Gedrückt(lauf.tasten, key::down) ? 1 : 0;
    kopf();
    füße(lauf);
    tempo(lauf);
    springen(lauf);
    gehen();
    sichtNachführen(lauf);
}

bool Jumpspiel::festBei(float y) const {
    const std::int32_t x = Runden(SpielerX);
    const std::int32_t zeile = Runden(y) / Kachel;
    return Karte.fest(x / Kachel, zeile) || (x % Kachel > 0 && Karte.fest(x / Kachel + 1, zeile));
}

void Jumpspiel::kopf() {
    if (SpielerY <= 0 || !festBei(SpielerY)) return;
    SpielerY = static_cast<float>(Runden(SpielerY / Kachel) * Kachel + 1);
    SpielerVY = 0;
}

void Jumpspiel::füße(Lauf& lauf) {
    if (SpielerY > obenFüße && festBei(SpielerY + spielerHoehe)) {
        if (AmBoden == 0) lauf.tick.Klänge.push_back("pop.wav");
        AmBoden = 1;
        BodenNachlauf = nachlauf;
        SpielerY = static_cast<float>(Kachel * (Runden(SpielerY + spielerHoehe) / Kachel - 2));
        SpielerVY = -SpielerVY / 6;
    } else if (BodenNachlauf == 0) {
        AmBoden = 0;
    } else {
        --BodenNachlauf;
    }
}

// Left comes second, so on the ground it wins over right.
void Jumpspiel::tempo(const Lauf& lauf) {
    if (AmBoden != 0 || std::fabs(SpielerVX) <= luftBremse)
        SpielerVX = 0;
    else
        SpielerVX -= std::copysign(luftBremse, SpielerVX);
    if (SiegZaehler != 0) return;
    if (Gedrückt(lauf.tasten, key::right)) SpielerVX = AmBoden != 0 ? schritttempo : SpielerVX + luftSchub;
    if (Gedrückt(lauf.tasten, key::left)) SpielerVX = AmBoden != 0 ? -schritttempo : SpielerVX - luftSchub;
    if (Gedrückt(lauf.tasten, key::escape)) {
        SpielerVY = aufgabeVY;
        TotZaehler = 1;
    }
}

void Jumpspiel::springen(Lauf& lauf) {
    if (Gedrückt(lauf.tasten, key::space) && AmBoden > 0 && !SprungGehalten) {
        lauf.tick.Klänge.push_back("boing.wav");
        --AmBoden;
        SprungGehalten = true;
        SpielerVY = sprungVY;
        funken(lauf, 15, SpielerX, SpielerY + spielerHoehe, SpielerX + spielerBreite, SpielerY + spielerHoehe,
               false);
    } else if (lauf.tasten[key::space] < 128) {
        SprungGehalten = false;
    }
}

void Jumpspiel::gehen() {
    if (CheckLinksundRechts(SpielerX, SpielerY, SpielerVX, Spielergröße.w, 3)) {
        SpielerX = static_cast<float>(Runden(SpielerX / Kachel) * Kachel);
        SpielerVX = 0;
    } else {
        SpielerX += SpielerVX;
    }
}

void Jumpspiel::sichtNachführen(Lauf& lauf) {
    const auto abstand = [&] { return static_cast<float>(Runden(SpielerX)) - Sicht.ScrollX; };
    if (abstand() > sichtRechts) Sicht.Scroll(Runden(abstand() - sichtRechts), lauf.tick.Schritte);
    if (abstand() < sichtLinks) Sicht.Scroll(Runden(abstand() - sichtLinks), lauf.tick.Schritte);
}

// --- the end

// Pressing on against the right end brings the figure to exactly that place.
void Jumpspiel::ziel(Lauf& lauf) {
    if (SpielerX != letztesX || SpielerY != zielY) return;
    lauf.tick.Zielbild = Point{Runden(SpielerX - Sicht.ScrollX), Runden(SpielerY - Kachel)};
    SpielerVX = 0;
    SpielerVY = 0;
    SiegZaehler = 1;
}

bool Jumpspiel::Entscheiden(bool sieg) {
    if (Ende != 0 || TotZaehler != 0 || SiegZaehler != 0) return false;
    (sieg ? SiegZaehler : TotZaehler) = 1;
    return true;
}

void Jumpspiel::feiern(Lauf& lauf) {
    Ergebnis = true;
    if (++SiegZaehler > siegTicks) Ende = 1;
    SpielerBild = 2 + SiegZaehler / siegBildTicks % 2;
    funken(lauf, 5, SpielerX, SpielerY - 48, SpielerX + spielerBreite, SpielerY, false);
}

void Jumpspiel::sichtbarkeit() {
    for (auto& g : Gegner)
        g.Sichtbar =
            g.Lebt && g.X + static_cast<float>(g.Art().Breite) > Sicht.ScrollX && Sicht.ScrollX + Jumpfeld.w > g.X;
}

// Sparks live on the surface, all else in the level.
void Jumpspiel::funken(Lauf& lauf, int anzahl, float X1, float Y1, float X2, float Y2, bool brocken) {
    Funken.Addpartikel(lauf.zufall, anzahl, X1 - Sicht.ScrollX, Y1, X2 - Sicht.ScrollX, Y2, brocken);
}

}  // namespace zentrox
