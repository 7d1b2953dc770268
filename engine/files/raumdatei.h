// Reads room files and script files.
#pragma once

#include <array>
#include <vector>

#include "engine/state/zustand.h"
#include "platform/machine/files.h"

namespace zentrox {

// Where the parts of a file begin, in bytes from its start, for tools that point at them.
struct SkriptOrte {
    std::size_t anfang = 0;            // its last index
    std::vector<std::size_t> befehle;  // one for each instruction
};
struct ObjektOrte {
    std::array<SkriptOrte, 3> aktion;
    std::size_t zeiger = 0;
    std::size_t name = 0;
};
struct RaumOrte {
    SkriptOrte startskript;
    SkriptOrte countDownSkript;
    std::vector<ObjektOrte> objekte;
};

// Reads the room file at `path` (a game path). Throws `DataError` that names the file, and where it is damaged also
// the number of the field, its line, and what was expected there.
Raum readRoom(const Files& files, TextView path);
// The same from memory; `name` stands for the file in messages. Notes its places in `orte` if that is not null.
Raum parseRoom(TextView bytes, TextView name, RaumOrte* orte = nullptr);

// Reads the script file of an item. Where there is none the script is empty, or for a path that ends in "2.skp" the
// one that plays a remark of refusal. Throws as `readRoom` does where a file is damaged.
Skript LadeSkript(const Files& files, TextView path);
Skript parseSkript(TextView bytes, TextView name, SkriptOrte* orte = nullptr);

}  // namespace zentrox
