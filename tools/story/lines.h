// All that a story shows as text, out of it and back in: for recordings, for spelling, for other languages.
#pragma once

#include "tools/story/finding.h"

namespace zentrox::story {

struct TextLine {
    std::string key;  // the same as long as the text and the room or item that it stands in are the same
    Place place;
    Text speaker;  // empty where nobody is known to say it
    Text voice;    // the file that is heard with it; may be empty
    Text text;     // its lines divided by "#", without marks of colour
};

// Each text once, in the order of the story: what is shown, questions and answers.
std::vector<TextLine> textsOf(const Story& story);

// A table with a head, fields divided by tabulators: key, place, speaker, voice, length in characters, text.
std::string asTable(const Story& story, const std::vector<TextLine>& lines);
std::string linesAsJson(const Story& story, const std::vector<TextLine>& lines);

// Puts other texts in their places. `utf8` is a table or a list as these functions write it; of a table the first
// and the last field count. `file` is its number in the story, for findings: lines without sense, keys that no text
// has.
void replaceTexts(Story& story, std::string_view utf8, int file, Findings& findings);

}  // namespace zentrox::story
