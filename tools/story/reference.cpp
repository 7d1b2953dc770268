#include "tools/story/reference.h"

#include "tools/story/grammar.h"
#include "tools/story/words.h"

namespace zentrox::story {

namespace {

constexpr const char* introduction =
    R"(# The commands of a script

This page is what `zentrox-story opcodes` prints; it is made from the table by which the game itself runs scripts.
[The language of stories](story-language.md) teaches how they are put together. What stands in brackets may be left
out. `Nr` is the number that a compiled script holds.

| Nr | Command | Written | What it does |
|---|---|---|---|
)";

constexpr const char* argumentsHead =
    R"(
## What stands behind a command

| Written | What it is | Commands |
|---|---|---|
)";

// Markdown takes a bar for the edge of a cell.
std::string inCell(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '|') out += '\\';
        out += c;
    }
    return out;
}

std::string asCode(std::string_view text) {
    return text.empty() ? std::string() : "`" + inCell(text) + "`";
}

// The names of the games stand for themselves in what is said of an argument.
std::string meaningOf(const Form& form) {
    std::string meaning = form.meaning;
    const std::size_t place = meaning.find("{}");
    if (place == std::string::npos) return meaning;
    std::string names;
    const auto games = gameNames();
    for (const Text& game : games)
        names += (&game == &games.front() ? "" : &game == &games.back() ? " or " : ", ") + asCode(toUtf8(game));
    return meaning.replace(place, 2, names);
}

std::string commandsWith(Arg arg) {
    std::string names;
    for (const Opcode& opcode : opcodes())
        if (opcode.arg == arg) names += (names.empty() ? "" : ", ") + asCode(toUtf8(opcode.name));
    return names;
}

}  // namespace

std::string referencePage() {
    std::string page = introduction;
    for (const Opcode& opcode : opcodes())
        page += "| " + std::to_string(opcode.number) + " | " + asCode(toUtf8(opcode.name)) + " | " +
                asCode(formOf(opcode.arg).usage) + " | " + inCell(opcode.doc) + " |\n";
    page += argumentsHead;
    for (const Form& form : allForms())
        if (form.arg != Arg::none)
            page += "| " + asCode(form.usage) + " | " + inCell(meaningOf(form)) + " | " + commandsWith(form.arg) +
                    " |\n";
    return page;
}

}  // namespace zentrox::story
