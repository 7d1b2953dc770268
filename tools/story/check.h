// Looks a story over: what the game could not make sense of is an error, what it can but nobody wants a warning.
#pragma once

#include "platform/picture/font.h"
#include "tools/story/filelooks.h"
#include "tools/story/finding.h"

namespace zentrox::story {

// What keeps a story from being built: what is wrong with its scripts in themselves. Instructions that are written
// with `Roh` are left alone, since their author wants them so, and so are objects that a part not built now may
// have.
void checkForBuild(const Story& story, Findings& findings);

// What the whole check needs beside the story. Each may be null; what depends on it then is not looked at.
struct Surroundings {
    const Story* rest = nullptr;  // the parts of the story that are known but not checked
    const DataFiles* data = nullptr;
    Fonts* fonts = nullptr;
    FileLooks* looks = nullptr;  // null looks at each file anew
    // True looks at the game as well: the rooms and files that it opens by itself, ways to each room, and whether
    // the files that are there can be used.
    bool wholeGame = false;
    bool fromSources = false;  // and not from compiled data
    bool wholeStory = true;    // false if there are parts that are not known; what could not be compiled is one
};

// All checks.
void check(const Story& story, const Surroundings& around, Findings& findings);

// --- the parts of it, one source file each

// Unknown commands, arguments that do not fit, blocks, choices, jumps and the objects that are named.
struct CommandRules {
    bool spareRaw = false;
    // Rooms whose objects the script of an item may name; where there are none, any name will do.
    std::vector<const StoryRoom*> rooms;
};
void checkCommands(const ScriptView& view, const CommandRules& rules, Findings& findings);
// Instructions that no run reaches, loops that never wait, saving while a count-down runs.
void checkRuns(const StoryRoom& room, Findings& findings);
void checkRun(const ScriptView& view, Findings& findings);
// Texts that run off the picture.
void checkTexts(const ScriptView& view, Fonts* fonts, Findings& findings);
// Files that are named and not there.
void checkFiles(const Story& story, const Surroundings& around, Findings& findings);
// Files that are there and can't be used, or not well.
void checkMedia(const Story& story, const DataFiles& data, FileLooks& looks, Findings& findings);
// The rooms that the game opens by itself, ways to each room, objects that no click reaches.
void checkRooms(const Story& story, const Surroundings& around, bool wholeStory, Findings& findings);
// Flags, items that are tested for, and the number of items.
void checkFlags(const Story& story, const Story* rest, Findings& findings);
void checkDropped(const Story& story, const Story* rest, Findings& findings);
void checkItems(const Story& story, const Story* rest, Findings& findings);

}  // namespace zentrox::story
