#include "room/aufschub.h"

#include <algorithm>

namespace zentrox {

bool Aufschub::Halten(std::function<void()> nachher, bool tick) {
    if (!z_.LeisteBewegt || z_.SkriptLäuft) return false;
    const auto istTick = [](const Ereignis& e) { return e.tick; };
    if (tick && std::any_of(wartend_.begin(), wartend_.end(), istTick)) return true;
    wartend_.push_back({besuch_, tick, std::move(nachher)});
    return true;
}

void Aufschub::Nachholen() {
    while (!wartend_.empty() && !z_.LeisteBewegt) {
        const Ereignis eines = std::move(wartend_.front());
        wartend_.pop_front();
        if (eines.besuch == besuch_) eines.tun();
    }
}

}  // namespace zentrox
