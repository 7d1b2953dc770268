#include "games/memory/memoryspiel.h"

#include <algorithm>
#include <utility>

namespace zentrox {

namespace {

constexpr int tauschen = 101;

}  // namespace

void Memoryspiel::Init(Random& zufall) {
    for (std::size_t i = 0; i < Karten.size(); ++i) Karten[i] = static_cast<std::int32_t>(i / 2);
    Tisch.fill(true);
    Gedaechtnis.fill(keine);
    for (int i = 0; i < tauschen; ++i) {
        const int p = zufall.below(kartenAnzahl);
        const int q = zufall.below(kartenAnzahl);
        std::swap(Karten[static_cast<std::size_t>(p)], Karten[static_cast<std::size_t>(q)]);
    }
    Punkte = {};
}

void Memoryspiel::AddIntelligenz(std::int32_t a, std::int32_t b) {
    std::copy(Gedaechtnis.begin() + 2, Gedaechtnis.end(), Gedaechtnis.begin());
    Gedaechtnis[4] = a;
    Gedaechtnis[5] = b;
}

Memoryspiel::Zug Memoryspiel::gegnerZug(Random& zufall) const {
    Zug zug = bekanntesPaar();
    if (zug.a != keine) return zug;
    zug.a = ziehen(zufall, keine);
    zug.b = partner(zug.a);
    if (zug.b == keine) zug.b = ziehen(zufall, zug.a);
    return zug;
}

// The search goes on behind a find, so the last one counts.
Memoryspiel::Zug Memoryspiel::bekanntesPaar() const {
    Zug zug;
    for (const std::int32_t a : Gedaechtnis)
        for (const std::int32_t b : Gedaechtnis) {
            if (a == keine || b == keine || a == b) continue;
            if (aufTisch(a) && aufTisch(b) && gleich(a, b)) zug = {a, b};
        }
    return zug;
}

std::int32_t Memoryspiel::partner(std::int32_t a) const {
    std::int32_t gefunden = keine;
    for (const std::int32_t b : Gedaechtnis)
        if (b != keine && b != a && gleich(a, b) && aufTisch(b)) gefunden = b;
    return gefunden;
}

std::int32_t Memoryspiel::ziehen(Random& zufall, std::int32_t nicht) const {
    for (;;) {
        const std::int32_t position = zufall.below(kartenAnzahl);
        if (position != nicht && aufTisch(position)) return position;
    }
}

void Memoryspiel::gewonnen(Zug zug, Wer wer) {
    Tisch[static_cast<std::size_t>(zug.a)] = Tisch[static_cast<std::size_t>(zug.b)] = false;
    ++Punkte[static_cast<std::size_t>(wer)];
}

TextView Memoryspiel::ergebnis() const {
    if (Punkte[0] == Punkte[1]) return "U";
    return Punkte[0] > Punkte[1] ? "W" : "L";
}

}  // namespace zentrox
