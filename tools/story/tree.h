// A script as its author wrote it: plain commands, and the forms that the compiler turns into plain commands.
#pragma once

#include "tools/story/condition.h"

namespace zentrox::story {

struct Node;
using Nodes = std::vector<Node>;

// What runs under one condition: of a `Wenn`, of a `Bei`, or as the answer to a question.
struct Branch {
    Statement head;
    Condition when;  // of an answer empty if it is always there
    Nodes body;
    std::vector<Token> text;  // of an answer
    bool once = false;
    bool closing = false;
};

struct Node {
    enum class Kind {
        plain,      // a command as it stands
        speech,     // NAME: "..."
        condition,  // `WennMerker`, `WennParameter`, `WennGegenstand`, with all its `SonstWenn`
        dropped,    // a row of `Bei`
        choice,     // `Auswahl`; its cases stand in the body as plain commands
        talk,       // `Gespräch`
        question,   // `Frage`
        call,       // `Rufe`
    };
    Kind kind = Kind::plain;
    Statement head;
    Nodes body;                    // of a choice, a talk
    std::vector<Branch> branches;  // of a condition, a row of `Bei`, a question
    std::optional<Branch> otherwise;
    std::optional<Statement> end;
};

// Blocks of plain commands that are not closed properly come out just as they stand, for the check to tell. What is
// wrong with the other forms is a finding.
Nodes readTree(const std::vector<Statement>& script, Findings& findings);

// The speaker's name and how many words it takes, where a statement is a line of somebody; nothing where it is not.
struct Speaker {
    Text name;
    std::size_t words = 0;
};
std::optional<Speaker> speakerOf(const Statement& statement);

// Reads what stands behind `Antwort` or `Schluss`.
Branch readAnswer(const Statement& statement, Findings& findings);

}  // namespace zentrox::story
