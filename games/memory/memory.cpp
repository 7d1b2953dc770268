#include "games/memory/memory.h"

#include "engine/state/warten.h"
#include "games/base/geladen.h"
#include "games/memory/memoryfenster.h"

namespace zentrox {

namespace {

constexpr Size fensterfläche{413, 463};
constexpr Milliseconds soSchnellEsGeht = 1;

constexpr Milliseconds flugDauer = 1000;

// A wait goes from the end of the one before. Behind a click or a flight that is long ago, so this one comes first.
constexpr std::int32_t luftholen = 1;
constexpr std::int32_t kurz = 500;
constexpr std::int32_t ansehen = 1000;

constexpr TextView unentschieden = "Unentschieden! Nächste Runde!"_t;

}  // namespace

Memory::Memory(Platform& platform, Zustand& zustand, Memorybilder bilder)
    : Window(platform, "Memory", "Memory", fensterfläche, Frame::fixed),
      z_(zustand),
      bild_(&root(), {zustand.Titel.Spieler, zustand.Titel.Gegner}, std::move(bilder),
            [this](std::int32_t position) { Klick = position; }),
      Timer1(platform.queue, soSchnellEsGeht, true, [this] { Timer1_Timer(); }) {
    z_.Übergabe = Text("L");
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

// The match is cut off, and its end is as always.
bool Memory::Entscheiden(bool sieg) {
    if (!laeuft) return false;
    spiel_.Punkte = {sieg ? paarAnzahl : 0, sieg ? 0 : paarAnzahl};
    Ende();
    laeuft = false;
    return true;
}

// --- the match

void Memory::match() {
    spiel_.Init(platform().random);
    for (Wer wer = Wer::spieler; laeuft;) {
        const Ausgang ausgang = wer == Wer::spieler ? spielerZug() : gegnerZug();
        if (ausgang == Ausgang::schluss) return;
        if (ausgang == Ausgang::wechsel) wer = wer == Wer::spieler ? Wer::gegner : Wer::spieler;
    }
}

Memory::Ausgang Memory::spielerZug() {
    const std::int32_t a = karteGewählt(keine);
    if (!laeuft) return Ausgang::schluss;
    bild_.Aufdecken(spiel_, a);
    const std::int32_t b = karteGewählt(a);
    if (!laeuft) return Ausgang::schluss;
    bild_.Aufdecken(spiel_, b);
    if (!warten(luftholen) || !warten(kurz)) return Ausgang::schluss;
    return nachZug({a, b}, Wer::spieler);
}

Memory::Ausgang Memory::gegnerZug() {
    const Memoryspiel::Zug zug = spiel_.gegnerZug(platform().random);
    if (!warten(luftholen)) return Ausgang::schluss;
    bild_.Aufdecken(spiel_, zug.a);
    if (!warten(kurz)) return Ausgang::schluss;
    bild_.Aufdecken(spiel_, zug.b);
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
    bild_.Zudecken(zug);
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

void Memory::KartenWeg(Memoryspiel::Zug zug, Wer wer) {
    bild_.Abheben(spiel_, zug);
    Queue& queue = platform().queue;
    const Milliseconds start = queue.clock();
    for (Milliseconds zeit = 0; laeuft && zeit < flugDauer; zeit = queue.clock() - start) {
        bild_.Fliegen(spiel_, zug, wer, static_cast<double>(zeit) / flugDauer);
        queue.nextFrame("KartenWeg");
    }
    bild_.Fliegen(spiel_, zug, wer, 1);
    spiel_.gewonnen(zug, wer);
}

void MemoryZeigen(Platform& platform, Zustand& zustand, Medien& /*medien*/) {
    zustand.Übergabe = Text("L");
    auto bilder = Geladen(platform, "MEMORY", [&] { return MemorybilderLaden(platform.files, zustand.PfadGames); });
    if (bilder) Memory(platform, zustand, std::move(*bilder)).showModal();
}

}  // namespace zentrox
