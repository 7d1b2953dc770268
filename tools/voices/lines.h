// Finds what is said in a story. A spoken line is the pair of `Ton "PERSON-...wav"` and the `Text` directly behind
// it.
#pragma once

#include "tools/story/finding.h"
#include "tools/voices/table.h"

namespace zentrox::voices {

struct SpokenLine {
    std::string file;  // without extension, UTF-8
    std::string person;
    Text text;  // as the script has it
};

// All lines of the story and of the table, each file once. To `findings` goes each `Ton` that another one cuts off
// at once, each one of a person that no `Text` follows or that nobody has a voice for, each coloured `Text` and
// each one below a portrait that no `Ton` begins, a text in the colour of somebody else, and a file that is to say
// two things.
std::vector<SpokenLine> linesOf(const story::Story& story, const Table& table, story::Findings& findings);

}  // namespace zentrox::voices
