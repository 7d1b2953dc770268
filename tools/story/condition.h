// What stands behind `WennMerker` and its kin: names, `nicht`, `und`, `oder`.
#pragma once

#include <span>

#include "tools/story/scanner.h"

namespace zentrox::story {

// One name that is asked for, or for whose absence.
struct Term {
    enum class Kind { flag, item, dropped };
    Kind kind = Kind::flag;
    bool negated = false;
    Token name;
};

// Terms of which all have to hold, and several such lists of which one has to.
using Condition = std::vector<std::vector<Term>>;

// `usual` is what a name means that has neither `Merker`, `Gegenstand` nor `Parameter` before it. One word alone is
// a name, whatever it says, and so is a word in quotes. Nothing where the words make no sense, which then is a
// finding that shows `command` and its place.
std::optional<Condition> readCondition(const Token& command, std::span<const Token> words, Term::Kind usual,
                                       Findings& findings);

}  // namespace zentrox::story
