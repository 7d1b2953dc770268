// The way out of whatever the room window is in: a text, a choice, a film, a game, runs inside runs.
#pragma once

#include <functional>

namespace zentrox {

// Thrown out of any wait while the room window stands. All that runs is given up, and when the room is at rest the
// window calls `weiter`, which may load another room, or throw again.
struct Sprung {
    std::function<void()> weiter;
};

}  // namespace zentrox
