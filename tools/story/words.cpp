#include "tools/story/words.h"

#include <algorithm>
#include <array>

#include "engine/state/felder.h"

namespace zentrox::story {

namespace {

constexpr std::array<TextView, 3> systemWords{"Open", "Save", "Abspann"};
constexpr std::array<TextView, 8> games{"PI", "JUMP", "ESEL", "HDW", "PRÜGEL"_t, "BRUHKS", "PONG", "MEMORY"};

}  // namespace

bool isSystemWord(TextView argument) {
    return std::find(systemWords.begin(), systemWords.end(), argument) != systemWords.end();
}

bool resemblesSystemWord(TextView argument) {
    return !isSystemWord(argument) && std::any_of(systemWords.begin(), systemWords.end(), [&](TextView word) {
        return equalIgnoringCase(word, Getrimmt(argument));
    });
}

bool isGame(TextView name) {
    return std::find(games.begin(), games.end(), name) != games.end();
}

std::vector<Text> gameNames() {
    return {games.begin(), games.end()};
}

bool isFade(TextView argument) {
    const double direction = Val(Feld(argument, ",", 1));
    return direction == 1 || direction == 2;
}

}  // namespace zentrox::story
