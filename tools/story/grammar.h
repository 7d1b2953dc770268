// How each command of a script is written in a source, told by what its argument is made of, and how what is
// written becomes the one text of the compiled argument. One row for each kind of argument.
#pragma once

#include <optional>
#include <span>

#include "engine/language/opcodes.h"
#include "tools/story/scanner.h"

namespace zentrox::story {

struct Form {
    Arg arg;
    std::size_t least;  // so many words or texts stand behind the command
    std::size_t most;
    const char* usage;    // as it is written, for the reference page: `X1 Y1 X2 Y2`
    const char* needs;    // German, for messages: "vier Zahlen"
    const char* meaning;  // for the reference page
};

std::span<const Form> allForms();
const Form& formOf(Arg arg);

// A keyword or command word as it is looked up: without regard to case, "ae" for "ä" and so on.
Text normalised(TextView word);
// The row of a command word; null if there is none.
const Opcode* commandNamed(TextView word);

// The compiled argument of a command, choices and their cases aside; nothing where the words do not fit, which then
// is a finding.
std::optional<Text> compileArgument(const Opcode& opcode, Place command, std::span<const Token> words,
                                    Findings& findings);
// The lines of a shown text, joined; nothing where a word stands without quotes or no text at all.
std::optional<Text> compileText(TextView command, Place place, std::span<const Token> words, Findings& findings);
// The place of each line of such a text.
std::vector<Place> linePlaces(std::span<const Token> words);

// The other way: what to write behind the command, UTF-8; nothing where only `Roh` can say it. Of a shown text each
// line is one entry, of everything else all stands in one.
std::optional<std::vector<std::string>> writtenArgument(const Opcode& opcode, TextView argument);
// A name as it is written where quotes may be left out: in quotes only if it has blanks, say.
std::string bareOrQuoted(TextView text);
// A text in quotes, characters that have no place between quotes by their number.
std::string inQuotes(TextView text);
// The lines of a shown text, each in quotes.
std::vector<std::string> linesInQuotes(TextView text);

}  // namespace zentrox::story
