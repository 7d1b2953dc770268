#include "games/jump/jumpbild.h"

#include "engine/state/felder.h"
#include "platform/codec/pictures.h"

namespace zentrox {

namespace {

// Where things stand in the atlas. The background lies at 0, 0.
constexpr Size atlasGröße{640, 2000};
constexpr int hintergrundPeriode = 624;
constexpr int kachelY = 432;
constexpr int spielerY = 480;
constexpr int spielerMaskeY = 576;
constexpr int kachelBilder = 11;
constexpr int spielerBilder = 4;
constexpr int zielkachel = 9;

Rect kachelbild(int wert) {
    return {Kachel * (wert - 1), kachelY, Kachel, Kachel};
}

Rect spielerbild(int bild) {
    return {{Spielergröße.w * bild, spielerY}, Spielergröße};
}

Point ortSpieler(const Jumpspiel& spiel) {
    return {Runden(static_cast<float>(Runden(spiel.SpielerX)) - spiel.Sicht.ScrollX), Runden(spiel.SpielerY)};
}

Point ortGegner(const Gegner& g, const Jumpspiel& spiel) {
    return {Runden(static_cast<float>(Runden(g.X)) - spiel.Sicht.ScrollX), Runden(g.Y)};
}

constexpr Rect spielerZelle{{0, 0}, Spielergröße};

Rect zelle(const Gegner& g) {
    return {g.RetteX, g.RetteY, g.Art().Breite, g.Art().Hoehe};
}

class Atlas {
public:
    Atlas(const Files& dateien, TextView pfad) : dateien_(dateien), pfad_(pfad) {}

    void Laden(const Text& name, Point ort) { bild.copy(loadPicture(dateien_, pfad_ + name + ".bmp"), ort); }
    void GegnerLaden(int typ);

    Bitmap bild{atlasGröße};

private:
    const Files& dateien_;
    Text pfad_;
};

void Atlas::GegnerLaden(int typ) {
    const GegnerTyp& art = GegnerTypen[static_cast<std::size_t>(typ)];
    for (int phase = 0; phase <= art.LetztesBild; ++phase) {
        const Text stamm = "g" + std::to_string(typ + 1) + std::to_string(phase + 1);
        const int x = phase * art.Breite;
        const int maskenY = art.AtlasY + art.Hoehe;
        Laden(stamm, {x, art.AtlasY});
        Laden(stamm + "m", {x, maskenY});
        Laden(stamm + "d", {x + art.Spiegelung(), art.AtlasY});
        Laden(stamm + "md", {x + art.Spiegelung(), maskenY});
    }
}

}  // namespace

Bitmap Grafikladen(const Files& dateien, TextView pfad) {
    Atlas atlas(dateien, pfad);
    atlas.Laden("j0", {0, 0});
    for (int i = 1; i <= kachelBilder; ++i) atlas.Laden("j" + std::to_string(i), kachelbild(i).at());
    for (int i = 1; i <= spielerBilder; ++i) {
        const Text stamm = "h" + std::to_string(i);
        atlas.Laden(stamm, spielerbild(i - 1).at());
        atlas.Laden(stamm + "m", {spielerbild(i - 1).x, spielerMaskeY});
    }
    for (int typ = 0; typ < static_cast<int>(GegnerTypen.size()); ++typ) atlas.GegnerLaden(typ);
    return std::move(atlas.bild);
}

// --- the view

void Jumpbild::Hintergrundaufbau(const Jumpspiel& spiel) {
    Feld.copy(Picture1, {{0, 0}, Jumpfeld}, {0, 0});
    const int spalte = Runden(spiel.Sicht.ScrollX) / Kachel;
    for (int i = 0; i * Kachel < Jumpfeld.w; ++i)
        streifen(spiel.Karte, spalte + i, 0, {i * Kachel, 0, Kachel, Jumpfeld.h});
    Feld.refresh();
}

// The part of a column that begins at its pixel `x`, as wide as `ziel`, over the background there.
void Jumpbild::streifen(const Karte& karte, int spalte, int x, const Rect& ziel) {
    for (int zeile = 0; zeile < Levelzeilen; ++zeile) {
        const int wert = karte.at(spalte, zeile);
        if (wert == 0) continue;
        const Rect bild = kachelbild(wert);
        Feld.copy(Picture1, {bild.x + x, bild.y, ziel.w, Kachel}, {ziel.x, Kachel * zeile});
    }
}

void Jumpbild::nachLinks(const Karte& karte, int a, int x) {
    Feld.copy(Feld.image(), {0, 0, Jumpfeld.w - a, Jumpfeld.h}, {a, 0});
    Feld.copy(Picture1, {x % hintergrundPeriode, 0, a, Jumpfeld.h}, {0, 0});
    streifen(karte, x / Kachel, x % Kachel, {0, 0, a, Jumpfeld.h});
}

// The background of the strip begins where the view will stand, the tiles where it stood.
void Jumpbild::nachRechts(const Karte& karte, int d, int x) {
    const Rect neu{Jumpfeld.w - d, 0, d, Jumpfeld.h};
    Feld.copy(Feld.image(), {d, 0, Jumpfeld.w - d, Jumpfeld.h}, {0, 0});
    Feld.copy(Picture1, {(x + d) % hintergrundPeriode, 0, d, Jumpfeld.h}, neu.at());
    streifen(karte, x / Kachel + Jumpfeld.w / Kachel, x % Kachel, neu);
}

void Jumpbild::Scrollen(const Karte& karte, const Scrollschritt& schritt) {
    if (schritt.d < 0)
        nachLinks(karte, -schritt.d, schritt.vorher + schritt.d);
    else
        nachRechts(karte, schritt.d, schritt.vorher);
}

// --- sprites

void Jumpbild::Entfernen(const Jumpspiel& spiel) {
    funken_.Entfernen();
    if (spiel.ErsterTick) return;
    for (auto g = spiel.Gegner.rbegin(); g != spiel.Gegner.rend(); ++g)
        if (g->Lebt && g->Sichtbar) Feld.copy(Picture2, zelle(*g), ortGegner(*g, spiel));
    Feld.copy(Picture2, spielerZelle, ortSpieler(spiel));
}

void Jumpbild::sichern(Point von, const Rect& zelle) {
    Picture2.copy(Feld.image(), {von, zelle.size()}, zelle.at());
}

void Jumpbild::ausschneiden(const Rect& bild, int maskenY, Point ort) {
    Feld.copy(Picture1, {{bild.x, maskenY}, bild.size()}, ort, Op::bitAnd);
    Feld.copy(Picture1, bild, ort, Op::bitOr);
}

void Jumpbild::spielerZeichnen(const Jumpspiel& spiel) {
    const Point ort = ortSpieler(spiel);
    sichern(ort, spielerZelle);
    ausschneiden(spielerbild(spiel.SpielerBild), spielerMaskeY, ort);
}

// Of one that sinks, only the upper part is drawn, so that its foot stays where it is.
void Jumpbild::gegnerZeichnen(const Gegner& g, const Jumpspiel& spiel) {
    const GegnerTyp& art = g.Art();
    const Point ort = ortGegner(g, spiel);
    sichern(ort, zelle(g));
    const int hoehe = Runden(static_cast<float>(art.Hoehe) - g.Hub);
    ausschneiden({art.Breite * g.Bild + g.Blick, art.AtlasY, art.Breite, hoehe}, art.AtlasY + art.Hoehe, ort);
}

void Jumpbild::Zeichnen(const Jumpspiel& spiel, const Jumptick& tick) {
    for (const Scrollschritt& schritt : tick.Schritte) Scrollen(spiel.Karte, schritt);
    if (tick.Zielbild) Feld.copy(Picture1, kachelbild(zielkachel), *tick.Zielbild);
    spielerZeichnen(spiel);
    for (const Gegner& g : spiel.Gegner)
        if (g.Sichtbar) gegnerZeichnen(g, spiel);
    funken_.Zeichnen(spiel.Funken);
    Feld.refresh();
}

}  // namespace zentrox
