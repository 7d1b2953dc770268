// Where the sources of a story name what: each flag, item, object, room, person, part, label and file, word by
// word.
#pragma once

#include <optional>

#include "engine/language/directories.h"
#include "tools/story/names.h"

namespace zentrox::story {

// What a name stands for. Two of the same kind, scope and key are the same thing.
struct Symbol {
    enum class Kind { flag, item, object, room, person, part, label, file, source };
    Kind kind = Kind::flag;
    Text key;    // as the game compares it
    Text scope;  // of an object its room's file in lower case, empty where any room may be meant; of a label its
                 // script
    friend auto operator<=>(const Symbol&, const Symbol&) = default;
};

struct Use {
    enum class Role { declares, sets, clears, tests, takes, gives, names };
    Symbol symbol;
    Role role = Role::names;
    Place place;  // of the first character, the quote included
    int end = 0;  // the column behind the last one, the quote included
    bool quoted = false;
    Text text;                          // as it is written, without quotes
    Ordner directory = Ordner::keiner;  // of a file
};

// In the order of the sources. What stands in a file that several sources include comes once.
std::vector<Use> usesOf(const std::vector<Source>& sources, const Names& names);

// The use at a place of a file; null for none. The column right behind a word still belongs to it.
const Use* useAt(const std::vector<Use>& uses, int file, int line, int column);

// A flag that is set as long as the game says so: of items carried, and `BÖSE`.
bool isKeptByGame(TextView flag);

}  // namespace zentrox::story
