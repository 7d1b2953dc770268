// The pacing of all loops that draw frame by frame, and the keyboard as they see it.
#pragma once

#include <functional>

#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

// Returns when `ms` milliseconds have passed since it returned last, whoever called it then, and serves the queue
// meanwhile, at least one turn. So the first call of a new loop may return at once.
void WarteFrame(Zustand& z, Platform& platform, std::int32_t ms);
// The same, but it returns as soon as `schluss` holds, for windows that can be closed meanwhile.
void WarteFrame(Zustand& z, Platform& platform, std::int32_t ms, const std::function<bool()>& schluss);

// Copies the state of all keys into `Tastatur`.
void TastaturLesen(Zustand& z, Platform& platform);

}  // namespace zentrox
