// Turns the tree of a script into plain commands, each with the place of what it was made from.
#pragma once

#include "tools/story/names.h"
#include "tools/story/tree.h"

namespace zentrox::story {

// One plain command as if an author had written it.
struct PlainCommand {
    Statement words;
    bool made = false;  // by the compiler alone: nobody is told that it is superfluous
    Text speaker;       // who says it, if it is a line of a person
};

// Where a script belongs: what its own flags and labels are named after.
struct Scene {
    Text where;  // room, item or part, in lower case
};

std::vector<PlainCommand> plainCommands(const Nodes& script, const Scene& scene, const Names& names,
                                        Findings& findings);

// The script of an item or an object with what is said of it elsewhere.
// `combinations` are those that concern the item with this base name; `own` is its own `Ablegen`, if it has one.
Nodes withCombinations(const Names& names, TextView baseName, std::optional<Nodes> own, Findings& findings);
// What happens when a thing is taken, before what its object does itself.
std::vector<Statement> takingOf(const Takeable& thing);
// What the start of a room does for a thing that has been taken.
std::vector<Statement> absenceOf(const Takeable& thing);

}  // namespace zentrox::story
