// What is said and asked in a script, as boxes and lines between them.
#pragma once

#include "tools/page/layout.h"
#include "tools/page/sections.h"
#include "tools/story/tree.h"

namespace zentrox::page {

struct TalkBox {
    enum class Kind { says, tests, asks, answer, leaves };
    struct Line {
        enum class Kind { speech, text, question, answer, command, condition };
        Kind kind = Kind::text;
        std::string text;    // UTF-8
        std::string prefix;  // who speaks, on the first of the lines that a text became
    };
    Kind kind = Kind::says;
    std::vector<Line> lines;  // broken so that they fit
    story::Place place;
};

struct TalkLine {
    std::size_t from = 0;
    std::size_t to = 0;
    std::string label;  // UTF-8
    bool back = false;
};

struct Talk {
    std::size_t section = 0;
    std::vector<TalkBox> boxes;
    std::vector<TalkLine> lines;
    Drawing drawing;  // of the same boxes and lines
};

// One for each script in which somebody talks, asks, or has a choice.
std::vector<Talk> talksOf(const std::vector<Section>& sections);

}  // namespace zentrox::page
