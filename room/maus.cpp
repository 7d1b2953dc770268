// All that the player does with the mouse in a room: what lies under the pointer, and which script a release
// starts.
#include <cmath>

#include "engine/files/raumdatei.h"
#include "room/form1.h"

namespace zentrox {

namespace {

int ganz(float wert) {
    return static_cast<int>(std::nearbyint(wert));
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

void Form1::Hintergrund_MouseMove() {
    zeiger_.Standard();
    z_.ZeigerLetzter = -1;
}

// --- a choice

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
    if (!aufschub_.Leer() && aufschub_.Halten([=, this] { Picture1_MouseDown(Taste, X, Y); })) return;
    z_.MausTaste = Taste == Button::left ? 2 : 1;
    z_.GezogenerGegenstand = -1;
    druckVorLeiste_ = !z_.LeisteOffen;
    if (z_.SkriptLäuft || !leiste_.Enthält(ganz(Y))) return;
    const int slot = leiste_.SlotBei(ganz(X), ganz(Y));
    if (slot == -1) return;
    z_.GezogenerGegenstand = slot;
    z_.GezogenerName = upper(leiste_.Name(slot));
    zeiger_.Halten();
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
    if (leiste_.Darüber(ganz(Y))) {
        if (z_.GezogenerGegenstand > -1) {
            leiste_.Verstecke();
            z_.LeisteGewünscht = false;
        }
    } else if (leiste_.Enthält(ganz(Y))) {
        return bewegtInLeiste(ganz(X), ganz(Y));
    }
    bewegtImRaum(ganz(X), ganz(Y));
    aufschub_.Nachholen();
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
    const int slot = leiste_.SlotBei(X, Y);
    if (slot > -1) {
        Picture1.setToolTip(leiste_.Name(slot));
        if (z_.GezogenerGegenstand > -1 && z_.GezogenerGegenstand != slot) return zeiger_.Heiß();
    }
    zeiger_.ÜberNichts();
}

void Form1::bewegtImRaum(int X, int Y) {
    const Raum& raum = z_.AktuellerRaum;
    const bool hält = z_.GezogenerGegenstand > -1;
    const int hit =
        objektBei(raum, X, Y, [hält](const RaumObjekt& o) { return o.Aktiv && (!hält || o.HatSkript[2]); });
    if (hit == -1) return zeiger_.ÜberNichts();
    if (hält) return zeiger_.Heiß();
    zeiger_.FürObjekt(raum.Objekte[static_cast<std::size_t>(hit)]);
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
    if (aufschub_.Halten(nachher)) return;
    // So is one whose press came before the bar stood.
    const bool imRaum = !leiste_.Enthält(ganz(Y)) || (druckVorLeiste_ && !hält);
    if (imRaum) return losImRaum(ganz(X), ganz(Y));
    const int slot = leiste_.SlotBei(ganz(X), ganz(Y));
    if (slot > -1) losInLeiste(slot);
}

void Form1::losImRaumNachher(int taste, int X, int Y, const Text& gehalten) {
    z_.MausTaste = taste;
    z_.GezogenerGegenstand = -1;
    if (!gehalten.empty()) {
        for (int slot = 0; slot <= z_.InventarLetzter; ++slot)
            if (upper(leiste_.Name(slot)) == gehalten) z_.GezogenerGegenstand = slot;
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
    const Text gegenstand = leiste_.Name(slot);
    const Text stamm = z_.PfadItems + gegenstand;
    const Text endungen = geklickt ? std::to_string(z_.MausTaste - 1) : "2";
    Skript skript;
    try {
        skript = LadeSkript(platform_.files, stamm + endungen + ".skp");
    } catch (const DataError& fehler) {
        melden(fehler);
    }
    z_.GezogenerGegenstand = -1;
    zeiger_.Standard();
    z_.ZeigerLetzter = -1;
    if (skript.Letzter < 0) return;
    Picture1.setToolTip("");
    beobachter_.HandeltInLeiste(gegenstand, geklickt ? z_.MausTaste - 1 : 2, geklickt ? Text() : z_.GezogenerName);
    interpreter_.SkriptAusführen(skript, -1, z_.GezogenerName);
    z_.MausTaste = 0;
}

void Form1::losImRaum(int X, int Y) {
    const int i = objektBei(z_.AktuellerRaum, X, Y, [](const RaumObjekt&) { return true; });
    if (i == -1) {
        z_.GezogenerGegenstand = -1;
        zeiger_.Standard();
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
        if (objekt.Aktiv) beobachter_.Handelt(i, static_cast<int>(k), fallen ? z_.GezogenerName : Text());
        interpreter_.SkriptAusführen(kopie, i, fallen ? z_.GezogenerName : Text());
    }
    z_.MausTaste = 0;
    z_.GezogenerGegenstand = -1;
}

}  // namespace zentrox
