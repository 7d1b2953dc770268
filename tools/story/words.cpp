#include "tools/story/words.h"

#include <algorithm>

#include "engine/language/games.h"
#include "engine/language/words.h"
#include "engine/state/felder.h"

namespace zentrox::story {

bool resemblesSystemWord(TextView argument) {
    return !istSystemwort(argument) &&
           std::any_of(systemwort::alle.begin(), systemwort::alle.end(),
                       [&](TextView word) { return equalIgnoringCase(word, Getrimmt(argument)); });
}

std::vector<Text> gameNames() {
    std::vector<Text> names;
    for (const SpielArt& game : Spiele()) names.emplace_back(game.name);
    return names;
}

}  // namespace zentrox::story
