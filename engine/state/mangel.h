// Data that is missing or damaged. The game goes on without it, and says so.
#pragma once

#include "engine/state/zustand.h"
#include "platform/platform.h"
#include "platform/values/error.h"

namespace zentrox {

// Shows a box that says what can't be used and where the story wanted it, German and for people: `was` names the
// file, `wo` the room, the object, the command. The same is told once while the program runs.
void MangelMelden(Platform& platform, Zustand& z, TextView was, TextView wo);

// What the game can't go on from: it ends in the menu.
class Ausweglos : public DataError {
public:
    using DataError::DataError;
};

}  // namespace zentrox
