#include "room/leiste.h"

#include <cmath>

#include "engine/state/farbe.h"
#include "engine/state/felder.h"
#include "engine/state/warten.h"
#include "platform/codec/pictures.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr int zelle = 64;
constexpr std::size_t endung = 4;  // dot and extension of a file name
constexpr int bild = 48;
constexpr int rand = (zelle - bild) / 2;
constexpr int zellenJeZeile = 640 / zelle;
constexpr float winkelschritt = 0.08F;
constexpr int taktAuf = 16;
constexpr int taktZu = 3;
constexpr int zeilenJeSchritt = 3;

Text ohneEndung(Text name) {
    name.resize(name.size() > endung ? name.size() - endung : 0);
    return name;
}

}  // namespace

Leiste::Leiste(Platform& platform, Zustand& z, Surface& view, const Surface& clean, Surface& loader)
    : platform_(platform),
      z_(z),
      Picture1(view),
      Picture3(clean),
      Picture5(loader),
      Picture4(platform.fonts, {view.width(), 1}) {}

int Leiste::SlotBei(int X, int Y) const {
    const int slot = X / zelle + (Y - oben()) / zelle * (Picture1.width() / zelle);
    return slot >= 0 && slot <= z_.InventarLetzter ? slot : -1;
}

Text Leiste::Name(int slot) const {
    return ohneEndung(Dateiname(z_.Inventar[static_cast<std::size_t>(slot)]));
}

float Leiste::volleHöhe() const {
    return static_cast<float>(z_.InventarLetzter / zellenJeZeile * zelle + zelle);
}

void Leiste::GegenständeLaden() {
    Picture4.removePicture();
    Picture4.setBack(black);
    Picture4.resize({Picture1.width(), static_cast<int>(volleHöhe())});
    Picture4.clear();
    for (int slot = 0; slot <= z_.InventarLetzter; ++slot) zeichnen(slot);
}

// A picture that can't be had, as in a saved game from elsewhere, leaves the cell with the item's name in it.
void Leiste::zeichnen(int slot) {
    const Point ecke{rand + zelle * (slot % zellenJeZeile), rand + zelle * (slot / zellenJeZeile)};
    try {
        Picture5.takePicture(loadPicture(platform_.files, z_.Inventar[static_cast<std::size_t>(slot)]));
        Picture4.copy(Picture5.image(), {0, 0, bild, bild}, ecke);
    } catch (const DataError&) {
        const Text name = Name(slot);
        Surface feld(platform_.fonts, {bild, bild});
        feld.currentY = (bild - feld.textHeight(name)) / 2;
        feld.currentX = std::max(0, (bild - feld.textWidth(name)) / 2);
        feld.print(name);
        Picture4.copy(feld.image(), {0, 0, bild, bild}, ecke);
    }
}

// The white edge at the bar's upper end.
void Leiste::strich() {
    Picture1.line({0, oben()}, {Picture1.width(), oben()}, Farbe16(15));
}

void Leiste::Zeige() {
    const int W = Picture1.width();
    const int H = Picture1.height();
    z_.LeisteBewegt = true;
    for (;;) {
        z_.LeisteZu = false;
        if (z_.LeisteOffen) {
            z_.LeisteBewegt = false;
            return;
        }
        LeisteVoll = volleHöhe();
        z_.LeisteWinkel += winkelschritt;
        z_.LeisteHöhe = Runden(LeisteVoll * std::sin(z_.LeisteWinkel));
        if (z_.LeisteWinkel >= z_.PI / 2) break;
        Picture1.box({0, oben()}, {W, H}, black);
        strich();
        WarteFrame(z_, platform_, taktAuf);
    }
    z_.LeisteOffen = true;
    z_.LeisteWinkel = z_.PI;
    z_.LeisteHöhe = Runden(LeisteVoll);
    Picture1.copy(Picture4.image(), {0, 0, W, z_.LeisteHöhe - 1}, {0, oben()});
    strich();
    z_.LeisteBewegt = false;
}

void Leiste::Verstecke() {
    if (z_.LeisteZu) return;
    Picture1.setToolTip("");
    const int W = Picture1.width();
    const int H = Picture1.height();
    z_.LeisteBewegt = true;
    Picture1.setAutoRedraw(false);
    z_.LeisteOffen = false;
    Picture1.box({0, oben()}, {W, H}, black);
    for (int i = z_.LeisteHöhe; i >= 0; i -= zeilenJeSchritt) {
        Picture1.copy(Picture3.image(), {0, H - i, W, zeilenJeSchritt}, {0, H - i});
        Picture1.line({0, H - i + zeilenJeSchritt}, {W, H - i + zeilenJeSchritt}, Farbe16(15));
        WarteFrame(z_, platform_, taktZu);
    }
    Picture1.setAutoRedraw(true);
    Picture1.copy(Picture3.image(), {0, oben(), W, z_.LeisteHöhe}, {0, oben()});
    Picture1.refresh();
    Weg();
}

void Leiste::Weg() {
    z_.LeisteOffen = false;
    z_.LeisteHöhe = 0;
    z_.LeisteWinkel = 0;
    z_.LeisteZu = true;
    z_.LeisteBewegt = false;
}

}  // namespace zentrox
