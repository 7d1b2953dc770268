// All words that a statement of a source may begin with: those that give a source its shape, the forms that the
// compiler turns into plain commands, and the commands of the game themselves.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/values/text.h"

namespace zentrox::story {

// What a word is to a source.
enum class WordKind : std::uint8_t {
    heading,  // begins what a source is made of: a room, an object, an item, a person, ...
    detail,   // says something of what is headed
    script,   // begins a script
    block,    // gives a script its shape: conditions, choices, talks
    command,  // everything else that runs
};

// Where a word may stand; a word may have several.
namespace stands {
constexpr unsigned top = 1;
constexpr unsigned room = 2;
constexpr unsigned object = 4;
constexpr unsigned item = 8;
constexpr unsigned person = 16;
constexpr unsigned script = 32;
}  // namespace stands

struct LanguageWord {
    TextView name;
    WordKind kind;
    unsigned where;
    std::string usage;  // what stands behind it, UTF-8
    const char* help;   // a German sentence for who points at it, UTF-8
};

// What gives a source its shape, then the commands of the game, then the forms.
std::span<const LanguageWord> languageWords();
// In any spelling that counts; null if it is none. `Portrait` is the command, also where it belongs to a person.
const LanguageWord* languageWord(TextView word);

// Words that may stand behind others without being names.
std::span<const TextView> innerWords();

}  // namespace zentrox::story
