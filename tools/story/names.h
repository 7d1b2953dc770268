// What the sources of a story declare for all of them: people, names of items, parts of scripts, combinations of
// items; and what is asked for anywhere, so that the compiler keeps it in mind everywhere.
#pragma once

#include <map>
#include <set>

#include "tools/story/scanner.h"

namespace zentrox::story {

struct Person {
    Text name;
    Place place;
    Text portrait;      // file; empty for none
    bool left = false;  // the frame of the portrait
    Text colour;        // the mark that each line begins with; empty for none
    Text voice;         // what the files of the voice begin with; empty for none
    bool player = false;
};

struct Part {
    Place place;
    std::vector<Statement> script;
};

// Two items that make a third one, whichever is dropped on the other, and what else happens then.
struct Combination {
    Statement head;
    Text first;  // pictures
    Text second;
    Text result;
    std::vector<Statement> script;
    bool compiled = true;
};

// An object that can be taken: its room, and the flag that tells whether it has been.
struct Takeable {
    Statement head;
    Text object;
    Text picture;
    Text flag;
};

struct SpokenPlace {
    Place place;  // of the line
    Text where;   // room, item or part that it stands in, for the name of its file
    Text voice;
    Text text;  // lines divided by "#"
};

struct Names {
    std::map<Text, Person> people;  // by their names, normalised
    std::map<Text, Text> items;     // pictures by declared names, normalised
    std::map<Text, Text> spelled;   // base names of pictures by declared names, as they are written
    std::map<Text, Text> pictures;  // pictures by their base names in upper case, as far as any source names them
    std::map<Text, Part> parts;     // normalised
    std::vector<Combination> combinations;
    std::map<Text, std::vector<Takeable>> takeables;  // by the room's file in lower case
    std::set<Text> asked;    // base names in upper case of items that `WennGegenstand` and the like ask for
    std::set<Text> dropped;  // base names in upper case of items that have an `Ablegen` of their own
    std::vector<SpokenPlace> spoken;
    std::map<Place, Text> voices;  // the file of each spoken line, by its place

    const Person* person(TextView name) const;
    const Part* part(TextView name) const;
    // The picture that a word means where an item is meant: by a declared name, else as it stands.
    Text pictureOf(const Token& word) const;
    // The same where a script knows items by the names of their pictures.
    Text baseNameOf(const Token& word) const;
};

// One source, included files in their places.
struct Source {
    std::vector<Statement> statements;
    bool compiled = true;  // false if it is only known, so that nothing in it is a finding
};
Names readNames(const std::vector<Source>& sources, Findings& findings);

// A word that begins a room, an object, a script or another part of a source, and so ends what is open.
bool beginsPart(const Statement& statement);

// Flags that the compiler keeps itself. Authors can ask for them, in quotes.
Text carriedFlag(TextView baseName);  // "GEGENSTAND SEIL"
Text takenFlag(TextView room, TextView object);
Text onceFlag(TextView where, TextView answer);
// True for such a flag of carried items; gives the item.
std::optional<Text> itemOfFlag(TextView flag);
// A room's or script's file, as it stands in the names of flags and voices: without directories and extension.
Text stemOf(TextView file);

}  // namespace zentrox::story
