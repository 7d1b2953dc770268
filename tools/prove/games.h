// Which mini-games a story can't be finished without: those that have to be won on every way to an ending.
#pragma once

#include "tools/prove/prove.h"

namespace zentrox::prove {

struct GameNeed {
    Text name;                          // as the game is called in scripts, upper case
    std::optional<story::Place> place;  // where it is opened first
    // Nothing if the search was stopped before it knew.
    std::optional<bool> needed;
};

// Each game that the story opens, in the order of their names; `needed` of none is true where no play reaches an
// ending anyway. Throws as `prove` does.
std::vector<GameNeed> gameNeeds(const story::Story& story, const Marks& marks, const Options& options);

// German, UTF-8, one line each and one for the rest; empty for a story without games.
std::string asText(const story::Story& story, const std::vector<GameNeed>& needs);

}  // namespace zentrox::prove
