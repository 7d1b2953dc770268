// The one guard of the games against files that can't be used.
#pragma once

#include <optional>

#include "platform/platform.h"
#include "platform/values/error.h"

namespace zentrox {

// Tells in a message box which file it was. `spiel` is the game as a story names it.
void DateiMelden(Platform& platform, TextView spiel, const DataError& fehler);

// What `lesen` gives; nothing if a file that it reads is missing or damaged, after a box that names it. The game
// then counts as lost, and the room goes on.
template <class Lesen>
auto Geladen(Platform& platform, TextView spiel, Lesen lesen) -> std::optional<decltype(lesen())> {
    try {
        return lesen();
    } catch (const DataError& fehler) {
        DateiMelden(platform, spiel, fehler);
        return std::nullopt;
    }
}

}  // namespace zentrox
