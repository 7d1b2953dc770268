// A walk: the text that plays the game in place of a person, one command a line.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace zentrox::probe {

struct Verb;

// What a walk may ask: "not window Dialog".
struct Condition {
    bool negated = false;
    std::string kind;
    std::vector<std::string> words;  // UTF-8, as many as the kind takes
    std::string spelled;             // as it stands in the walk
};

struct Command {
    int line = 0;
    const Verb* verb = nullptr;      // the row of the language that it fits
    std::vector<std::string> words;  // UTF-8, without the condition
    Condition condition;             // of `expect`, `until` and of `say` with a condition
};

// A walk that can't be read. The message is `FILE:LINE: ...`.
class WalkError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Walk {
    std::string name;  // for messages: the file, or "-"
    std::vector<Command> commands;
};

// Takes UTF-8, with or without a byte order mark. Throws `WalkError` at the first line that is none of the
// language.
Walk parseWalk(const std::string& name, const std::string& text);

// The virtual code of a key by its name, 0 if there is none.
int keyCode(const std::string& name);
// The character that a key types by itself, 0 if it types none.
char keyCharacter(const std::string& name);

// Decimal digits with an optional sign.
bool isNumber(const std::string& word);

}  // namespace zentrox::probe
