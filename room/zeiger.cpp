// All that the player does with the mouse in a room: what lies under the pointer, which picture it has, and which
// script a release starts.
#include <cmath>

#include "engine/files/raumdatei.h"
#include "engine/state/farbe.h"
#include "engine/state/felder.h"
#include "platform/codec/pictures.h"
#include "room/form1.h"

namespace zentrox {

namespace {

constexpr int zelle = 64;  // of the bar
constexpr int endung = 4;  // dot and extension of a file name
constexpr int meisteZeigerbilder = 5;

constexpr TextView geballt = "ge2.ico";
constexpr TextView werfen = "werfen.ico";

int ganz(float wert) {
    return static_cast<int>(std::nearbyint(wert));
}

Text ohneEndung(Text name) {
    name.resize(name.size() > endung ? name.size() - endung : 0);
    return name;
}

// The lowest object that has the cell in its mask, -1 for none. `taugt` may ask for more.
template <class Bedingung>
int objektBei(const Raum& raum, int X, int Y, Bedingung taugt) {
    for (int i = 0; i <= raum.LetztesObjekt; ++i) {
        const RaumObjekt& objekt = raum.Objekte[static_cast<std::size_t>(i)];
        if (objekt.Maske.at(X / Maskenzelle, Y / Maskenzelle) && taugt(objekt)) return i;
    }
    return -1;
}

}  // namespace

// --- the pointer's picture

Form1::Zeigerart Form1::zeigerart() const {
    switch (pointer().mode) {
        case Pointer::Mode::own: return Zeigerart::eigen;
        case Pointer::Mode::question: return Zeigerart::frage;
        default: return Zeigerart::pfeil;
    }
}

void Form1::ZeigerStandard() {
    setPointer({});
}

void Form1::ZeigerEigen() {
    if (!eigenerZeiger_.empty()) setPointer({Pointer::Mode::own, eigenerZeiger_});
}

// An icon is read once to see that it is sound; the display reads it again in the size that it needs. In place of
// one that is missing or damaged stands the arrow.
void Form1::ZeigerLaden(TextView Pfad) {
    const auto [icon, neu] = geprüfteZeiger_.try_emplace(Text(Pfad), true);
    if (neu) {
        try {
            loadIcon(platform_.files, Pfad);
        } catch (const DataError& fehler) {
            icon->second = false;
            melden(fehler);
        }
    }
    if (!icon->second) return ZeigerStandard();
    eigenerZeiger_ = Pfad;
    ZeigerEigen();
}

void Form1::zeigerFrage() {
    setPointer({Pointer::Mode::question, {}});
}

void Form1::zeigerÜberNichts() {
    if (z_.GezogenerGegenstand > -1) {
        ZeigerLaden(cursor(geballt));
    } else {
        ZeigerStandard();
    }
    z_.ZeigerLetzter = -1;
}

void Form1::zeigerHeiß() {
    z_.ZeigerBilder[0] = cursor(werfen);
    z_.ZeigerBilder[1] = cursor(geballt);
    z_.ZeigerLetzter = 1;
}

void Form1::zeigerFürObjekt(const RaumObjekt& objekt) {
    const Text pfad = cursor(Dateiname(objekt.Zeiger));
    if (objekt.Zeiger.empty() || !platform_.files.exists(pfad)) {
        zeigerFrage();
        z_.ZeigerLetzter = -1;
        return;
    }
    z_.ZeigerBilder[0] = pfad;
    if (zeigerart() != Zeigerart::eigen) ZeigerLaden(pfad);
    z_.ZeigerLetzter = 0;
    if (pfad.size() <= endung) return;
    const Text stamm = pfad.substr(0, pfad.size() - endung - 1);
    for (int k = 2; k <= meisteZeigerbilder; ++k) {
        Text bild = stamm + std::to_string(k) + pfad.substr(pfad.size() - endung);
        if (platform_.files.exists(bild)) z_.ZeigerLetzter = k - 1;
        z_.ZeigerBilder[static_cast<std::size_t>(k) - 1] = std::move(bild);
    }
}

void Form1::Timer1_Timer() {
    if (z_.ZeigerLetzter == -1) return;
    if (++z_.ZeigerBild > z_.ZeigerLetzter) z_.ZeigerBild = 0;
    const Text& bild = z_.ZeigerBilder[static_cast<std::size_t>(z_.ZeigerBild)];
    // A row of numbered icons may have a gap; the picture before it then stays.
    if (geprüfteZeiger_.count(bild) != 0 || platform_.files.exists(bild)) {
        ZeigerLaden(bild);
    } else {
        ZeigerEigen();
    }
}

void Form1::Hintergrund_MouseMove() {
    ZeigerStandard();
    z_.ZeigerLetzter = -1;
}

// --- places

bool Form1::inLeiste(int Y) const {
    return z_.LeisteOffen && Y >= leisteOben();
}

int Form1::slotBei(int X, int Y) const {
    const int breite = Picture1.width() / zelle;
    const int slot = X / zelle + (Y - leisteOben()) / zelle * breite;
    return slot >= 0 && slot <= z_.InventarLetzter ? slot : -1;
}

Text Form1::gegenstandName(int slot) const {
    return ohneEndung(Dateiname(z_.Inventar[static_cast<std::size_t>(slot)]));
}

int Form1::auswahlZeileBei(float Y) const {
    const int T = Picture1.height() / 2 - z_.AuswahlHöhe / 2;
    const auto kante = [&](std::size_t i) { return static_cast<float>(T + z_.AuswahlKanten[i]); };
    for (std::size_t i = 0; i + 1 < z_.AuswahlKanten.size(); ++i)
        if (Y > kante(i) && Y < kante(i + 1)) return static_cast<int>(i);
    return -1;
}

// --- press

void Form1::Picture1_MouseDown(Button Taste, float X, float Y) {
    // What came before it and waits for the slide still holds its item.
    if (!aufgeschoben_.empty() && aufschieben([=, this] { Picture1_MouseDown(Taste, X, Y); })) return;
    z_.MausTaste = Taste == Button::left ? 2 : 1;
    z_.GezogenerGegenstand = -1;
    druckVorLeiste_ = !z_.LeisteOffen;
    if (z_.SkriptLäuft || !inLeiste(ganz(Y))) return;
    const int slot = slotBei(ganz(X), ganz(Y));
    if (slot == -1) return;
    z_.GezogenerGegenstand = slot;
    z_.GezogenerName = upper(gegenstandName(slot));
    ZeigerLaden(cursor(geballt));
    z_.ZeigerLetzter = -1;
}

// --- move

void Form1::ZeigerAuffrischen() {
    Picture1_MouseMove(z_.MausX, z_.MausY);
}

void Form1::Picture1_MouseMove(float X, float Y) {
    z_.MausX = X;
    z_.MausY = Y;
    if (z_.SkriptLäuft) return bewegtInAuswahl(Y);
    Picture1.setToolTip("");
    if (z_.LeisteOffen && ganz(Y) < leisteOben()) {
        if (z_.GezogenerGegenstand > -1) {
            VersteckeLeiste();
            z_.LeisteGewünscht = false;
        }
    } else if (inLeiste(ganz(Y))) {
        return bewegtInLeiste(ganz(X), ganz(Y));
    }
    bewegtImRaum(ganz(X), ganz(Y));
    nachholen();
}

void Form1::invertiere(int zeile) {
    const int T = Picture1.height() / 2 - z_.AuswahlHöhe / 2;
    const auto i = static_cast<std::size_t>(zeile);
    if (i + 1 >= z_.AuswahlKanten.size()) return;
    Picture1.invertBox({0, T + z_.AuswahlKanten[i]}, {Picture1.width(), T + z_.AuswahlKanten[i + 1]});
}

void Form1::bewegtInAuswahl(float Y) {
    if (z_.AuswahlErgebnis != -1) return;
    if (AuswahlZeile > -1) invertiere(AuswahlZeile);
    AuswahlZeile = auswahlZeileBei(Y);
    if (AuswahlZeile > -1) invertiere(AuswahlZeile);
}

void Form1::bewegtInLeiste(int X, int Y) {
    const int slot = slotBei(X, Y);
    if (slot > -1) {
        Picture1.setToolTip(gegenstandName(slot));
        if (z_.GezogenerGegenstand > -1 && z_.GezogenerGegenstand != slot) return zeigerHeiß();
    }
    zeigerÜberNichts();
}

void Form1::bewegtImRaum(int X, int Y) {
    const Raum& raum = z_.AktuellerRaum;
    const bool hält = z_.GezogenerGegenstand > -1;
    const int hit =
        objektBei(raum, X, Y, [hält](const RaumObjekt& o) { return o.Aktiv && (!hält || o.HatSkript[2]); });
    if (hit == -1) return zeigerÜberNichts();
    if (hält) return zeigerHeiß();
    zeigerFürObjekt(raum.Objekte[static_cast<std::size_t>(hit)]);
}

// --- release

void Form1::Picture1_MouseUp(Button Taste, float X, float Y) {
    z_.MausTaste = Taste == Button::left ? 2 : 1;
    if (z_.SkriptLäuft) {
        if (z_.AuswahlErgebnis == -1) auswahlWählen(Y);
        z_.MausTaste = 0;
        return;
    }
    // The bar does not stand during a slide: this is a release in the room.
    const bool hält = z_.GezogenerGegenstand != -1;
    const auto nachher = [=, this, gehalten = hält ? z_.GezogenerName : Text(), taste = z_.MausTaste] {
        losImRaumNachher(taste, ganz(X), ganz(Y), gehalten);
    };
    if (aufschieben(nachher)) return;
    // So is one whose press came before the bar stood.
    const bool imRaum = !inLeiste(ganz(Y)) || (druckVorLeiste_ && !hält);
    if (imRaum) return losImRaum(ganz(X), ganz(Y));
    const int slot = slotBei(ganz(X), ganz(Y));
    if (slot > -1) losInLeiste(slot);
}

void Form1::losImRaumNachher(int taste, int X, int Y, const Text& gehalten) {
    z_.MausTaste = taste;
    z_.GezogenerGegenstand = -1;
    if (!gehalten.empty()) {
        for (int slot = 0; slot <= z_.InventarLetzter; ++slot)
            if (upper(gegenstandName(slot)) == gehalten) z_.GezogenerGegenstand = slot;
        if (z_.GezogenerGegenstand == -1) return;  // it has been taken away meanwhile
        z_.GezogenerName = gehalten;
    }
    losImRaum(X, Y);
}

void Form1::auswahlWählen(float Y) {
    const int zeile = auswahlZeileBei(Y);
    if (zeile == -1) return;
    z_.AuswahlErgebnis = zeile + 1;
    AuswahlZeile = -1;
}

void Form1::losInLeiste(int slot) {
    const bool geklickt = z_.GezogenerGegenstand == slot || z_.GezogenerGegenstand == -1;
    const Text stamm = z_.PfadItems + gegenstandName(slot);
    const Text endungen = geklickt ? std::to_string(z_.MausTaste - 1) : "2";
    Skript skript;
    try {
        skript = LadeSkript(platform_.files, stamm + endungen + ".skp");
    } catch (const DataError& fehler) {
        melden(fehler);
    }
    z_.GezogenerGegenstand = -1;
    ZeigerStandard();
    z_.ZeigerLetzter = -1;
    if (skript.Letzter < 0) return;
    Picture1.setToolTip("");
    interpreter_.SkriptAusführen(skript, -1, z_.GezogenerName);
    z_.MausTaste = 0;
}

void Form1::losImRaum(int X, int Y) {
    const int i = objektBei(z_.AktuellerRaum, X, Y, [](const RaumObjekt&) { return true; });
    if (i == -1) {
        z_.GezogenerGegenstand = -1;
        ZeigerStandard();
        z_.ZeigerLetzter = -1;
        z_.MausTaste = 0;
        return;
    }
    const RaumObjekt& objekt = z_.AktuellerRaum.Objekte[static_cast<std::size_t>(i)];
    const bool fallen = z_.GezogenerGegenstand != -1;
    const auto k = static_cast<std::size_t>(fallen ? 2 : z_.MausTaste - 1);
    if (objekt.HatSkript[k]) {
        // A room change inside the script overwrites the objects.
        const Skript kopie = objekt.Aktion[k];
        interpreter_.SkriptAusführen(kopie, i, fallen ? z_.GezogenerName : Text());
    }
    z_.MausTaste = 0;
    z_.GezogenerGegenstand = -1;
}

}  // namespace zentrox
