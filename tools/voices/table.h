// The table of voices: who speaks how, what is said otherwise than it is written, and lines that stand in no
// script.
//
//     klang EFFECT...                                       effects of sox behind those of each voice
//     stimme NAME COLOUR VOICE PITCH SPEED LEVEL EFFECT...  a person; COLOUR is a digit of `$`, or - for none
//     wort "WRITTEN" "SPOKEN"
//     zeile "FILE" NAME "TEXT"
//
// Words are separated by blanks, quotes hold words together, # begins a comment.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/values/text.h"

namespace zentrox::voices {

struct Voice {
    char colour = '-';    // of this person's texts: 0 to 9, A to F, or - for the usual white
    std::string variant;  // of espeak-ng, as "de+f3"
    int pitch = 50;       // 0 to 99
    int speed = 160;      // words a minute
    double level = -20;   // decibels below full scale, over what is louder than a pause
    std::vector<std::string> effects;
};

struct Replacement {
    Text written;
    Text spoken;
};

struct ExtraLine {
    std::string file;
    std::string person;
    Text text;
};

struct Table {
    std::map<std::string, Voice, std::less<>> voices;
    std::vector<std::string> effects;
    std::vector<Replacement> words;
    std::vector<ExtraLine> lines;
};

struct TableError : std::runtime_error {
    TableError(int where, const std::string& what) : std::runtime_error(what), line(where) {}
    int line;
};

// Throws `TableError` with the number of the line that can't be read.
Table readTable(std::string_view utf8);

}  // namespace zentrox::voices
