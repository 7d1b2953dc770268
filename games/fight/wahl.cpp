#include "games/fight/wahl.h"

namespace zentrox {

std::int32_t& Technikwahl::platz(std::int32_t wahl) {
    Techniken6& reihe = wahl < Kampfrunden ? Angriff : Abwehr;
    return reihe[static_cast<std::size_t>(wahl % Kampfrunden)];
}

void Technikwahl::Klick(std::int32_t Index) {
    if (Index >= Zurück) {
        if (Wahlen == 0) return;
        std::int32_t& letzte = platz(--Wahlen);
        if (letzte == Trank) Zaubertrank = true;
        letzte = KeineWahl;
        return;
    }
    if (Index == Trank) Zaubertrank = false;
    if (Fertig()) return;
    platz(Wahlen++) = Index;
}

}  // namespace zentrox
