// What a source consists of, as its author sees it: rooms with their objects, items, parts, people, and their
// scripts.
#pragma once

#include "tools/story/scanner.h"
#include "tools/story/vocabulary.h"

namespace zentrox::story {

struct Section {
    enum class Kind { room, object, item, scriptFile, part, person, combination, script };
    Kind kind = Kind::room;
    Text name;              // as it is written; of a script the word that begins it
    std::size_t begin = 0;  // the statements that belong to it, the one that heads it first
    std::size_t end = 0;
    std::vector<Section> inside;  // in their order

    // Whether commands stand directly in it.
    bool holdsCommands() const;
};

// What stands in no section, at the top of a source or where its heading is missing, is left out.
std::vector<Section> sectionsOf(const std::vector<Statement>& statements);

// The sections around a statement, from the outermost one.
std::vector<const Section*> sectionsAt(const std::vector<Section>& sections, std::size_t at);

// The words of a statement from one on, joined as a name that may have blanks.
Text joinedName(const Statement& statement, std::size_t from);

}  // namespace zentrox::story
