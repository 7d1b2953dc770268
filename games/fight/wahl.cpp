#include "games/fight/wahl.h"

namespace zentrox {

std::int32_t& Technikwahl::Platz(std::int32_t wahl) {
    Techniken6& reihe = wahl < Kampfrunden ? Angriff_ : Abwehr_;
    return reihe[static_cast<std::size_t>(wahl % Kampfrunden)];
}

void Technikwahl::Klick(std::int32_t Index) {
    if (Index >= Zurück) {
        if (Wahlen_ == 0) return;
        std::int32_t& letzte = Platz(--Wahlen_);
        if (letzte == Trank) Zaubertrank_ = true;
        letzte = KeineWahl;
        return;
    }
    if (Index == Trank) Zaubertrank_ = false;
    if (Fertig()) return;
    Platz(Wahlen_++) = Index;
}

}  // namespace zentrox
