// Words of arguments, as people write them.
#pragma once

#include <vector>

#include "platform/values/text.h"

namespace zentrox::story {

// A word of `System` but for its case or blanks around it, which then is no word of the game.
bool resemblesSystemWord(TextView argument);
std::vector<Text> gameNames();

}  // namespace zentrox::story
