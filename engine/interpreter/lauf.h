// One run of a script: the state that lives for the call alone.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include "engine/state/zustand.h"

namespace zentrox {

struct Lauf {
    const Skript& skript;
    Text parameter;      // in upper case, by the caller
    Text ort;            // for people: the room, and whose script it is
    bool start = false;  // the start script of a room, which the next room's takes the place of
    std::optional<Text> nächsterRaum{};
    std::int32_t zeiger = 0;
    bool schluss = false;         // the run is over and `skript` is not touched again
    bool schlussSchritte = true;  // whether the closing steps belong to its end
    std::size_t nummer = 0;       // by which `Beobachter` knows the script

    // A room's own scripts run in place. A count-down that changes the room during a wait puts other scripts there,
    // so nothing of the script is remembered from one instruction to the next.
    std::int32_t letzter() const {
        return std::min(skript.Letzter, static_cast<std::int32_t>(skript.Befehl.size()) - 1);
    }
    bool amEnde() const { return zeiger > letzter(); }
    std::int32_t befehl() const { return befehl(zeiger); }
    std::int32_t befehl(std::int32_t index) const { return skript.Befehl[static_cast<std::size_t>(index)]; }
    // Valid until the next wait: what is needed behind one has to be copied.
    TextView argument() const { return argument(zeiger); }
    TextView argument(std::int32_t index) const {
        const auto i = static_cast<std::size_t>(index);
        return i < skript.Argument.size() ? TextView(skript.Argument[i]) : TextView();
    }
};

}  // namespace zentrox
