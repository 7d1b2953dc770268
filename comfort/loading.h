// Going over into a saved game from wherever the play is.
#pragma once

#include "comfort/moment.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

// Leaves all that runs and goes on in the saved game at `path`, by a `Sprung`, which it throws. Returns only where
// the game can't be loaded, which a box then says, or where the player would rather not, as items of it are
// missing; the running game is then untouched.
void jumpInto(Platform& platform, Zustand& zustand, Moment& moment, const Text& path);

// Whether to load a game although this story has no more these things of it.
bool loadWithout(Platform& platform, const std::vector<Text>& items);

}  // namespace zentrox
