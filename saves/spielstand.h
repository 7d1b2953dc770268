// The bytes of a saved game: lines of text in code page 1252, each ended by carriage return and line feed.
#pragma once

#include "engine/state/zustand.h"

namespace zentrox {

// What the story has changed for good: `RaumDatei`, `Merker`, `Inventar` with `InventarLetzter`, `BösePunkte`.
Text SpielstandSchreiben(const Zustand& z);

// Reads them back into the same fields. False if the bytes are no saved game, which leaves the state as it is, or
// if they end early or hold a number that can't be, which leaves in it what was read before.
bool SpielstandLesen(TextView bytes, Zustand& z);

}  // namespace zentrox
