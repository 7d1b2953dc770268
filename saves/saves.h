// Saving and loading a game, from the question for its name to the room that it stands in.
#pragma once

#include "engine/interpreter/raumfenster.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

// Asks for a name and writes the game. A failure is a message box, after which the game goes on.
void SpielSpeichern(Platform& platform, Zustand& z, Raumfenster& raum);

// Asks for a name, reads the game and enters its room. True when that has happened; the room that was open before
// is then gone, and the script that asked must end.
bool SpielLaden(Platform& platform, Zustand& z, Raumfenster& raum);

}  // namespace zentrox
