// The rules of Memory, a plain value: the deal, the table, and Tirsa, who remembers the cards of the last three
// failed turns.
#pragma once

#include <array>
#include <cstdint>

#include "platform/values/random.h"
#include "platform/values/text.h"

namespace zentrox {

constexpr int kartenAnzahl = 16;
constexpr int paarAnzahl = kartenAnzahl / 2;
constexpr std::int32_t keine = -1;

enum class Wer { spieler = 0, gegner = 1 };

struct Memoryspiel {
    struct Zug {
        std::int32_t a = keine;  // positions
        std::int32_t b = keine;
        friend bool operator==(const Zug&, const Zug&) = default;
    };

    std::array<std::int32_t, kartenAnzahl> Karten{};  // 0 to 7 by position
    std::array<std::int32_t, 6> Gedaechtnis{};        // positions
    std::array<std::int32_t, 2> Punkte{};             // pairs
    std::array<bool, kartenAnzahl> Tisch{};           // by position: it has not been won yet

    // Deals a new match: 101 swaps of two random positions.
    void Init(Random& zufall);

    bool aufTisch(std::int32_t position) const { return Tisch[static_cast<std::size_t>(position)]; }
    bool gleich(std::int32_t a, std::int32_t b) const { return wert(a) == wert(b); }
    std::int32_t wert(std::int32_t position) const { return Karten[static_cast<std::size_t>(position)]; }

    // Files a failed turn. The ring forgets the oldest turn, not the oldest card: both cells of a turn leave
    // together.
    void AddIntelligenz(std::int32_t a, std::int32_t b);
    // The cards that Tirsa turns. At least one pair must lie on the table.
    Zug gegnerZug(Random& zufall) const;
    // Takes a pair off the table.
    void gewonnen(Zug zug, Wer wer);

    bool zuEnde() const { return Punkte[0] + Punkte[1] == paarAnzahl; }
    // "W", "L" or "U" as the player sees it.
    TextView ergebnis() const;

private:
    Zug bekanntesPaar() const;
    std::int32_t partner(std::int32_t a) const;
    std::int32_t ziehen(Random& zufall, std::int32_t nicht) const;
};

}  // namespace zentrox
