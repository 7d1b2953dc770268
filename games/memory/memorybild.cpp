#include "games/memory/memorybild.h"

#include "engine/state/felder.h"
#include "engine/state/titel.h"
#include "platform/codec/pictures.h"

namespace zentrox {

namespace {

constexpr int kartenSeite = 97;
constexpr int kartenAbstand = 104;
constexpr int gewonneneSeite = 16;
constexpr int gewonnenerAbstand = 24;

Rect platz(std::int32_t position) {
    return {position % 4 * kartenAbstand, position / 4 * kartenAbstand, kartenSeite, kartenSeite};
}

int seiteImFlug(double p) {
    return Runden(gewonneneSeite + (kartenSeite - gewonneneSeite) * (1 - p));
}

Point ortImFlug(Point von, Point nach, double p) {
    return {Runden(von.x + p * (nach.x - von.x)), Runden(von.y + p * (nach.y - von.y))};
}

std::uint32_t mittel(const Bitmap& bild, const Rect& teil) {
    std::uint32_t rot = 0;
    std::uint32_t grün = 0;
    std::uint32_t blau = 0;
    for (int y = teil.y; y < teil.bottom(); ++y)
        for (int x = teil.x; x < teil.right(); ++x) {
            const std::uint32_t pixel = bild.row(y)[x];
            rot += pixel >> 16U & 0xFFU;
            grün += pixel >> 8U & 0xFFU;
            blau += pixel & 0xFFU;
        }
    const auto anzahl = static_cast<std::uint32_t>(teil.w * teil.h);
    return rot / anzahl << 16U | grün / anzahl << 8U | blau / anzahl;
}

}  // namespace

Memorybilder MemorybilderLaden(const Files& files, TextView pfad) {
    const auto karte = [&](const Text& datei) {
        return verkleinert(loadPicture(files, Text(pfad) + datei), {kartenSeite, kartenSeite});
    };
    Memorybilder bilder;
    bilder.rücken = karte("m9.jpg");
    for (std::size_t i = 0; i < bilder.gesichter.size(); ++i)
        bilder.gesichter[i] = karte("m" + std::to_string(i + 1) + ".jpg");
    return bilder;
}

Bitmap verkleinert(const Bitmap& bild, Size größe) {
    Bitmap klein(größe);
    if (bild.width() < größe.w || bild.height() < größe.h) {
        klein.stretch(bild, bild.bounds(), klein.bounds());
        return klein;
    }
    for (int y = 0; y < größe.h; ++y)
        for (int x = 0; x < größe.w; ++x) {
            const Point von{x * bild.width() / größe.w, y * bild.height() / größe.h};
            const Point bis{(x + 1) * bild.width() / größe.w, (y + 1) * bild.height() / größe.h};
            klein.row(y)[x] = mittel(bild, {von.x, von.y, bis.x - von.x, bis.y - von.y});
        }
    return klein;
}

Memorybild::Memorybild(Control* parent, const std::array<Text, 2>& namen, Memorybilder bilder,
                       std::function<void(std::int32_t position)> klick)
    : parent_(parent),
      bilder_(std::move(bilder)),
      klick_(std::move(klick)),
      Label1{{{parent, {0, 416, 41, 17}, angegebenOder(namen[0], "Velmar") + ":"},
              {parent, {0, 440, 41, 17}, angegebenOder(namen[1], "Tirsa") + ":"}}} {
    // A name of the story's own is as long as it is.
    for (std::size_t i = 0; i < Label1.size(); ++i) Label1[i].setAutoSize(!namen[i].empty());
    for (std::int32_t i = 0; i < kartenAnzahl; ++i) karteAnlegen(i);
}

// A control made anew is the topmost one.
void Memorybild::karteAnlegen(std::int32_t position) {
    Image1[static_cast<std::size_t>(position)].emplace(parent_, platz(position), true);
    karte(position).setPicture(bilder_.rücken);
    karte(position).onClick = [this, position] { klick_(position); };
}

const Bitmap& Memorybild::gesicht(const Memoryspiel& spiel, std::int32_t position) const {
    return bilder_.gesichter[static_cast<std::size_t>(spiel.wert(position))];
}

void Memorybild::Aufdecken(const Memoryspiel& spiel, std::int32_t position) {
    karte(position).setPicture(gesicht(spiel, position));
}

void Memorybild::Zudecken(Memoryspiel::Zug zug) {
    for (const std::int32_t k : {zug.a, zug.b}) karte(k).setPicture(bilder_.rücken);
}

void Memorybild::Abheben(const Memoryspiel& spiel, Memoryspiel::Zug zug) {
    for (const std::int32_t k : {zug.a, zug.b}) {
        karteAnlegen(k);
        karte(k).setEnabled(false);
        Aufdecken(spiel, k);
    }
}

void Memorybild::Fliegen(const Memoryspiel& spiel, Memoryspiel::Zug zug, Wer wer, double p) {
    const Label& name = Label1[static_cast<std::size_t>(wer)];
    const Point ziel{name.width() + gewonnenerAbstand * spiel.Punkte[static_cast<std::size_t>(wer)], name.area().y};
    const int seite = seiteImFlug(p);
    const Bitmap klein = verkleinert(gesicht(spiel, zug.a), {seite, seite});
    for (const std::int32_t k : {zug.a, zug.b}) {
        karte(k).setArea({ortImFlug(platz(k).at(), ziel, p), {seite, seite}});
        karte(k).setPicture(klein);
    }
}

}  // namespace zentrox
