// The choice of techniques that comes before the fight, a plain value: six attacks, then six defences.
#pragma once

#include <array>
#include <cstdint>

namespace zentrox {

constexpr std::int32_t Kampfrunden = 6;
constexpr std::int32_t AlleWahlen = 2 * Kampfrunden;
constexpr std::int32_t Techniken = 3;  // of attack, and as many of defence; icons 0 to 2
constexpr std::int32_t Trank = 3;      // the potion, as an attack; its icon has the same number
constexpr std::int32_t Zurück = 4;     // the icon that takes the last choice back
constexpr std::int32_t KeineWahl = -1;

using Techniken6 = std::array<std::int32_t, Kampfrunden>;

constexpr Techniken6 NichtsGewählt{KeineWahl, KeineWahl, KeineWahl, KeineWahl, KeineWahl, KeineWahl};

struct Technikwahl {
    bool Zaubertrank = false;  // it can still be chosen
    Techniken6 Angriff = NichtsGewählt;
    Techniken6 Abwehr = NichtsGewählt;
    std::int32_t Wahlen = 0;

    // A click on an icon, 0 to 4.
    void Klick(std::int32_t Index);

    bool BeimAngriff() const { return Wahlen < Kampfrunden; }
    bool Fertig() const { return Wahlen == AlleWahlen; }

private:
    // Where the choice of this number is kept.
    std::int32_t& platz(std::int32_t wahl);
};

}  // namespace zentrox
