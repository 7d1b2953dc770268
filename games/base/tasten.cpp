#include "games/base/tasten.h"

#include <algorithm>

namespace zentrox {

void Tastenwacht::Nieder(int code) {
    constexpr std::uint8_t gehaltenUndLos = 127;
    if (code > 0 && code < static_cast<int>(getippt_.size()))
        getippt_[static_cast<std::size_t>(code)] = gehaltenUndLos;
}

void Tastenwacht::Ergänzen(Tasten& tasten) {
    for (std::size_t i = 0; i < tasten.size(); ++i) tasten[i] = std::max(tasten[i], getippt_[i]);
    getippt_ = {};
}

}  // namespace zentrox
