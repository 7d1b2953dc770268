// Bringing a saved game into the one that runs, whoever has asked for it.
#pragma once

#include <vector>

#include "engine/interpreter/raumfenster.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"
#include "platform/values/error.h"

namespace zentrox {

// A saved game that has been looked at.
struct Ladung {
    Text Bytes;
    Text RaumDatei;
    std::vector<Text> Fehlendes;  // the names of its items that this data lacks
};

// The room of a saved game is missing or can't be read.
class RaumFehler : public DataError {
public:
    using DataError::DataError;
};

// Looks at a saved game, and touches nothing of the one that runs. Throws `DataError`, which says in German why it
// can't be loaded: there is no such file, it is no saved game or damaged, or `RaumFehler`.
Ladung SpielstandPrüfen(const Files& files, const Zustand& z, TextView pfad);

// For the player: why the game at `pfad` can't be loaded, and what of it this story has no more.
Text LadefehlerText(const Text& pfad, const DataError& fehler);
Text FehlendesText(const std::vector<Text>& gegenstände);

// The names of the carried items that this data lacks.
std::vector<Text> FehlendeGegenstände(const Files& files, const Zustand& z);

// Goes on in the room that `SpielstandLesen` has brought, with the items of this data.
void SpielFortsetzen(const Files& files, Zustand& z, Raumfenster& raum);

// Puts a game that was looked at in place of the one that runs.
void SpielEinsetzen(const Files& files, Zustand& z, Raumfenster& raum, const Ladung& ladung);

}  // namespace zentrox
