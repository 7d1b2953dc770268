// Saving and loading a game, from the question for its name to the room that it stands in.
#pragma once

#include <vector>

#include "engine/interpreter/raumfenster.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

// What stands round saving and loading. This one asks by the plain dialog and does nothing else; what a player
// wishes beside that is made by deriving from it.
class Speicherwart {
public:
    virtual ~Speicherwart() = default;
    // The full path that a person has chosen, empty if none. `titel` is "Spiel speichern" or "Spiel laden".
    virtual Text Fragen(Platform& platform, Zustand& z, TextView titel);
    // The running game has been written there.
    virtual void Geschrieben(const Text& /*pfad*/, TextView /*bytes*/) {}
    // Whether a game shall be loaded although this data lacks items of it, given by their names.
    virtual bool TrotzdemLaden(Platform& /*platform*/, const std::vector<Text>& /*gegenstände*/) { return true; }
};

// Asks for a name and writes the game. A failure is a message box, after which the game goes on.
void SpielSpeichern(Platform& platform, Zustand& z, Raumfenster& raum, Speicherwart& wart);
void SpielSpeichern(Platform& platform, Zustand& z, Raumfenster& raum);

// Asks for a name, reads the game and enters its room. True when that has happened; the room that was open before
// is then gone, and the script that asked must end. A game whose room can't be read is told of in a box, and the
// one that runs stays as it is.
bool SpielLaden(Platform& platform, Zustand& z, Raumfenster& raum, Speicherwart& wart);
bool SpielLaden(Platform& platform, Zustand& z, Raumfenster& raum);

// Why a file could not be written, from the system's error number.
Text SchreibfehlerText(int code);

}  // namespace zentrox
