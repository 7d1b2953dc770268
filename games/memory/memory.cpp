#include "games/memory/memory.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "engine/state/warten.h"
#include "games/memory/memoryfenster.h"
#include "platform/codec/pictures.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr Size fensterfläche{413, 463};
constexpr Milliseconds soSchnellEsGeht = 1;

constexpr int kartenSeite = 97;
constexpr int kartenAbstand = 104;
constexpr int gewonneneSeite = 16;
constexpr int gewonnenerAbstand = 24;
constexpr Milliseconds flugDauer = 1000;

// A wait goes from the end of the one before. Behind a click or a flight that is long ago, so this one comes first.
constexpr std::int32_t luftholen = 1;
constexpr std::int32_t kurz = 500;
constexpr std::int32_t ansehen = 1000;

constexpr TextView unentschieden = "Unentschieden! Nächste Runde!"_t;

Rect platz(std::int32_t position) {
    return {position % 4 * kartenAbstand, position / 4 * kartenAbstand, kartenSeite, kartenSeite};
}

// Where a card is when a share of its flight lies behind it.
Rect imFlug(Point von, Point nach, double p) {
    const int seite = Runden(gewonneneSeite + (kartenSeite - gewonneneSeite) * (1 - p));
    return {Runden(von.x + p * (nach.x - von.x)), Runden(von.y + p * (nach.y - von.y)), seite, seite};
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

Memorybilder laden(const Files& files, const Text& pfad) {
    const auto karte = [&](TextView datei) {
        return verkleinert(loadPicture(files, pfad + Text(datei)), {kartenSeite, kartenSeite});
    };
    Memorybilder bilder;
    bilder.rücken = karte("m9.jpg");
    for (std::size_t i = 0; i < bilder.gesichter.size(); ++i)
        bilder.gesichter[i] = karte("m" + std::to_string(i + 1) + ".jpg");
    return bilder;
}

}  // namespace

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

Memory::Memory(Platform& platform, Zustand& zustand, Memorybilder bilder)
    : Window(platform, "Memory", "Memory", fensterfläche, Frame::fixed),
      z_(zustand),
      bilder_(std::move(bilder)),
      Label1{{{&root(), {0, 416, 41, 17}, angegebenOder(zustand.Titel.Spieler, "Velmar") + ":"},
              {&root(), {0, 440, 41, 17}, angegebenOder(zustand.Titel.Gegner, "Tirsa") + ":"}}},
      Timer1(platform.queue, soSchnellEsGeht, true, [this] { Timer1_Timer(); }) {
    z_.Übergabe = Text("L");
    Label1[0].setAutoSize(!z_.Titel.Spieler.empty());
    Label1[1].setAutoSize(!z_.Titel.Gegner.empty());
    for (std::int32_t i = 0; i < kartenAnzahl; ++i) karteAnlegen(i);
}

// A control made anew is the topmost one.
void Memory::karteAnlegen(std::int32_t position) {
    Image1[static_cast<std::size_t>(position)].emplace(&root(), platz(position), true);
    karte(position).setPicture(bilder_.rücken);
    karte(position).onClick = [this, position] { Klick = position; };
}

bool Memory::onQueryClose() {
    laeuft = false;
    return true;
}

void Memory::Timer1_Timer() {
    Timer1.setEnabled(false);
    laeuft = true;
    match();
    close();
}

// --- the match

void Memory::match() {
    spiel_.Init(platform().random);
    if (gegeben) spiel_.Karten = *gegeben;
    for (Wer wer = Wer::spieler; laeuft;) {
        const Ausgang ausgang = wer == Wer::spieler ? spielerZug() : gegnerZug();
        if (ausgang == Ausgang::schluss) return;
        if (ausgang == Ausgang::wechsel) wer = wer == Wer::spieler ? Wer::gegner : Wer::spieler;
    }
}

Memory::Ausgang Memory::spielerZug() {
    const std::int32_t a = karteGewählt(keine);
    if (!laeuft) return Ausgang::schluss;
    aufdecken(a);
    const std::int32_t b = karteGewählt(a);
    if (!laeuft) return Ausgang::schluss;
    aufdecken(b);
    if (!warten(luftholen) || !warten(kurz)) return Ausgang::schluss;
    return nachZug({a, b}, Wer::spieler);
}

Memory::Ausgang Memory::gegnerZug() {
    const Memoryspiel::Zug zug = spiel_.gegnerZug(platform().random);
    if (!warten(luftholen)) return Ausgang::schluss;
    aufdecken(zug.a);
    if (!warten(kurz)) return Ausgang::schluss;
    aufdecken(zug.b);
    return warten(kurz) ? nachZug(zug, Wer::gegner) : Ausgang::schluss;
}

// A click on another card than `nicht`. Earlier clicks are forgotten.
std::int32_t Memory::karteGewählt(std::int32_t nicht) {
    Klick = keine;
    platform().queue.waitUntil("Memory", [&] { return !laeuft || (Klick != keine && Klick != nicht); });
    return Klick;
}

Memory::Ausgang Memory::nachZug(Memoryspiel::Zug zug, Wer wer) {
    if (spiel_.gleich(zug.a, zug.b)) {
        KartenWeg(zug, wer);
        if (!spiel_.zuEnde()) return Ausgang::nochmal;
        Ende();
        return Ausgang::schluss;
    }
    if (wer == Wer::spieler && !warten(luftholen)) return Ausgang::schluss;
    if (!warten(ansehen)) return Ausgang::schluss;
    spiel_.AddIntelligenz(zug.a, zug.b);
    zudecken(zug);
    return warten(kurz) ? Ausgang::wechsel : Ausgang::schluss;
}

void Memory::Ende() {
    const TextView ergebnis = spiel_.ergebnis();
    if (ergebnis == "U") showMessageBox(platform(), {"Zentrox", Text(unentschieden)});
    z_.Übergabe = Text(ergebnis);
}

bool Memory::warten(std::int32_t ms) {
    WarteFrame(z_, platform(), ms, [this] { return !laeuft; });
    return laeuft;
}

// --- the cards

void Memory::zeigen(std::int32_t position, const Bitmap& bild) {
    karte(position).setPicture(bild);
}

void Memory::aufdecken(std::int32_t position) {
    zeigen(position, bilder_.gesichter[static_cast<std::size_t>(spiel_.wert(position))]);
}

void Memory::zudecken(Memoryspiel::Zug zug) {
    zeigen(zug.a, bilder_.rücken);
    zeigen(zug.b, bilder_.rücken);
}

void Memory::nachVorn(std::int32_t position) {
    karteAnlegen(position);
    karte(position).setEnabled(false);
    aufdecken(position);
}

// Both cards fly to one place in the row of who has won them, and shrink on the way.
void Memory::KartenWeg(Memoryspiel::Zug zug, Wer wer) {
    const Label& name = Label1[static_cast<std::size_t>(wer)];
    const Point ziel{name.width() + gewonnenerAbstand * spiel_.Punkte[static_cast<std::size_t>(wer)],
                     name.area().y};
    const Bitmap gesicht = bilder_.gesichter[static_cast<std::size_t>(spiel_.wert(zug.a))];
    const std::array karten{zug.a, zug.b};
    for (const std::int32_t k : karten) nachVorn(k);
    const auto setzen = [&](double p) {
        const Bitmap klein = verkleinert(gesicht, imFlug({}, {}, p).size());
        for (const std::int32_t k : karten) {
            karte(k).setArea(imFlug(platz(k).at(), ziel, p));
            zeigen(k, klein);
        }
    };
    Queue& queue = platform().queue;
    const Milliseconds start = queue.clock();
    for (Milliseconds zeit = 0; laeuft && zeit < flugDauer; zeit = queue.clock() - start) {
        setzen(static_cast<double>(zeit) / flugDauer);
        queue.nextFrame("KartenWeg");
    }
    setzen(1);
    spiel_.gewonnen(zug, wer);
}

void MemoryZeigen(Platform& platform, Zustand& zustand, Medien& /*medien*/) {
    std::optional<Memorybilder> bilder;
    try {
        bilder = laden(platform.files, zustand.PfadGames);
    } catch (const DataError& fehler) {
        showMessageBox(platform, {"Memory", fehler.message(), MessageBox::Icon::critical});
        zustand.Übergabe = Text("L");
        return;
    }
    Memory(platform, zustand, std::move(*bilder)).showModal();
}

}  // namespace zentrox
