// The choice of techniques that comes before the fight: six attacks, then six defences.
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

class Technikwahl {
public:
    explicit Technikwahl(bool zaubertrank) : Zaubertrank_(zaubertrank) {
        Angriff_.fill(KeineWahl);
        Abwehr_.fill(KeineWahl);
    }

    // A click on an icon, 0 to 4.
    void Klick(std::int32_t Index);

    const Techniken6& Angriff() const { return Angriff_; }
    const Techniken6& Abwehr() const { return Abwehr_; }
    std::int32_t Wahlen() const { return Wahlen_; }
    bool Zaubertrank() const { return Zaubertrank_; }  // it can still be chosen
    bool BeimAngriff() const { return Wahlen_ < Kampfrunden; }
    bool Fertig() const { return Wahlen_ == AlleWahlen; }

private:
    // Where the choice of this number is kept.
    std::int32_t& Platz(std::int32_t wahl);

    Techniken6 Angriff_{};
    Techniken6 Abwehr_{};
    std::int32_t Wahlen_ = 0;
    bool Zaubertrank_;
};

}  // namespace zentrox
