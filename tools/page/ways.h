// The ways between rooms, and what has to be so that they are open.
#pragma once

#include "tools/page/sections.h"
#include "tools/story/tree.h"

namespace zentrox::page {

// One thing that has to be for a command to be run.
struct Need {
    bool negated = false;
    story::Condition when;  // flags, items; empty where it is an answer
    Text answer;            // the text that has to be chosen
};

struct Way {
    int from = -1;  // of the story's rooms; -1: from the bag, or from a part that nobody calls
    int to = -1;    // -1: the end of the story, or a room that is not there
    Text target;    // the room as it is named, or how the ending is called
    bool ending = false;
    story::Place place;  // of the command
    std::size_t section = 0;
    std::vector<Need> needs;
};

// In the order of the sources. Of parts with a name each call counts.
std::vector<Way> waysOf(const Reading& reading, const std::vector<Section>& sections);

// The text of an answer or a question, its lines joined.
Text joinedText(std::span<const story::Token> lines);
// The lines behind a command, quoted ones only.
Text textBehind(const story::Statement& statement);

}  // namespace zentrox::page
