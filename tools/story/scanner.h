// Takes a readable source apart into statements: a line with its words and texts, together with the lines behind it
// that begin with a quote.
#pragma once

#include <string_view>
#include <vector>

#include "tools/story/finding.h"

namespace zentrox::story {

struct Token {
    bool quoted = false;
    Text value;  // code page 1252, without the quotes
    Place place;
    int end = 0;  // the column behind it, its quotes included; 0 for what the compiler made
};

using Statement = std::vector<Token>;  // never empty

// `utf8` is the whole file, number `file` of the story. Findings go to `findings`, silencing comments to
// `silences`. What is wrong is left out or replaced, so that the rest of the file can still be looked at.
// The places of all comments go to `comments`, if that is given.
std::vector<Statement> scan(std::string_view utf8, int file, Findings& findings, std::vector<Silence>& silences,
                            std::vector<Place>* comments = nullptr);

}  // namespace zentrox::story
