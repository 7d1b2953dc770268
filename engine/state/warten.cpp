#include "engine/state/warten.h"

namespace zentrox {

void WarteFrame(Zustand& z, Platform& platform, std::int32_t ms) {
    WarteFrame(z, platform, ms, [] { return false; });
}

void WarteFrame(Zustand& z, Platform& platform, std::int32_t ms, const std::function<bool()>& schluss) {
    constexpr TextView grund = "WarteFrame";
    platform.queue.yield(grund);
    bool geschlossen = false;
    while (!geschlossen) {
        const Milliseconds jetzt = platform.queue.clock();
        const std::int32_t marke = z.LetzterFrame;
        // The mark has 32 bits, so the clock wraps around; unsigned, the difference comes out right all the same.
        const std::uint32_t vergangen = static_cast<std::uint32_t>(jetzt) - static_cast<std::uint32_t>(marke);
        if (ms <= 0 || vergangen >= static_cast<std::uint32_t>(ms)) break;
        // One that nests in this wait moves the mark, and with it the end of this one.
        const auto genug = [&] { return (geschlossen = schluss()) || z.LetzterFrame != marke; };
        platform.queue.waitUntil(grund, genug, jetzt + (ms - static_cast<Milliseconds>(vergangen)));
    }
    z.LetzterFrame = static_cast<std::int32_t>(static_cast<std::uint32_t>(platform.queue.clock()));
}

void TastaturLesen(Zustand& z, Platform& platform) {
    z.Tastatur = platform.backend.keys();
}

}  // namespace zentrox
