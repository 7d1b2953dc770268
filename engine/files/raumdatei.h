// Reads room files and script files.
#pragma once

#include "engine/state/zustand.h"
#include "platform/files.h"

namespace zentrox {

// The longest name of a room's picture; what is longer is cut.
constexpr std::size_t LängstesBild = 100;

// Reads the room file at `path` (a game path). Throws `DataError` that names the file, and where it is damaged also
// the number of the field, its line, and what was expected there.
Raum readRoom(const Files& files, TextView path);
// The same from memory; `name` stands for the file in messages.
Raum parseRoom(TextView bytes, TextView name);

// Reads the script file of an item. Where there is none the script is empty, or for a path that ends in "2.skp" the
// one that plays a remark of refusal. Throws as `readRoom` does where a file is damaged.
Skript LadeSkript(const Files& files, TextView path);
Skript parseSkript(TextView bytes, TextView name);

}  // namespace zentrox
