// Where a player gets stuck for good: the steps from a state that still leads to an ending to one that does not.
#pragma once

#include "tools/prove/search.h"

namespace zentrox::prove {

struct LosingStep {
    std::int32_t script = -1;  // the instruction that lost the game
    std::int32_t index = 0;
    std::vector<Action> way;           // with the losing step at its end
    std::vector<std::string> missing;  // with any one of these the game could go on; German, UTF-8
};

// One for each instruction, the one that is reached in the fewest steps first. `search` must know what is alive.
// `matters` tells of each node whether it can have a part in it.
std::vector<LosingStep> findLosingSteps(const Program& program, const std::vector<char>& matters, Search& search);

}  // namespace zentrox::prove
