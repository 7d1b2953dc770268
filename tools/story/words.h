// What single words and numbers in arguments mean to the game.
#pragma once

#include <vector>

#include "platform/values/text.h"

namespace zentrox::story {

// The command `System`: one of its three words, just as it stands. Every other word closes the room window.
bool isSystemWord(TextView argument);
// One of them but for its case or blanks around it, which then is no word of the game.
bool resemblesSystemWord(TextView argument);
// A mini-game, by its name in upper case.
bool isGame(TextView name);
std::vector<Text> gameNames();
// A direction that `Blende` knows.
bool isFade(TextView argument);

}  // namespace zentrox::story
