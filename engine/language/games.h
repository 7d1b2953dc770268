// The mini-games: what a story calls each, the window it is played in, and the files that it can't do without.
#pragma once

#include <array>
#include <span>

#include "platform/values/text.h"

namespace zentrox {

struct SpielArt {
    TextView name;     // in `Spiel`, in upper case
    TextView fenster;  // the name of its window
    TextView titel;    // what people call it
    // Below the directory of games. Without one of them the game shows a message and counts as lost; sounds and
    // songs may be missing.
    std::span<const TextView> dateien;
    // It leaves "W", "L" or "U" as its outcome, and is played again as long as it is "U", a draw.
    bool kenntUnentschieden = false;
};

// All of them, in the order in which the names are tested.
std::span<const SpielArt> Spiele();

// Null for a name that no game has. The name counts exactly.
const SpielArt* findSpiel(TextView name);

}  // namespace zentrox
