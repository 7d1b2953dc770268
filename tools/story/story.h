// A story in memory, compiled: its rooms and its item scripts, each with the place it came from, be that a readable
// source or a data file.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "engine/state/zustand.h"

namespace zentrox::story {

// A place in one of `Story::files`. Lines and columns count from 1, columns in characters.
struct Place {
    int file = 0;
    int line = 1;
    int column = 1;
    friend auto operator<=>(const Place&, const Place&) = default;
};

struct CommandPlace {
    Place command;
    std::vector<Place> argument;  // where its argument stands; of a shown text one for each line; may be empty
    bool raw = false;             // written with `Roh`: the author takes it as it is
    bool broken = false;          // it could not be compiled, which is a finding already
    bool made = false;            // by the compiler alone, so that nobody is told that it is superfluous
    Text speaker;                 // who says it, if it is a line of a person
};

struct ScriptPlaces {
    Place head;
    std::vector<CommandPlace> commands;  // one for each instruction

    // Where the argument of an instruction stands, or if that is not known the instruction.
    Place argument(std::size_t index) const;
};

struct ObjectPlaces {
    Place name;
    Place pointer;
    std::array<ScriptPlaces, 3> action;
};

struct StoryRoom {
    Text file;  // below the directory of rooms, with backslashes
    Raum room;
    Place head;
    Place picture;
    ScriptPlaces start;
    ScriptPlaces countDown;
    std::vector<ObjectPlaces> objects;
};

struct StoryScript {
    Text file;  // in the directory of items
    Skript script;
    ScriptPlaces places;
};

// A comment that silences a finding of one kind on one line.
struct Silence {
    int file = 0;
    int line = 0;
    std::string code;
    friend auto operator<=>(const Silence&, const Silence&) = default;
};

struct Story {
    std::vector<std::string> files;  // names for people, UTF-8
    std::vector<StoryRoom> rooms;
    std::vector<StoryScript> scripts;
    std::vector<Silence> silences;

    // Where an item's picture is first named by `Gegenstand`.
    struct Item {
        Text picture;
        Place place;
    };
    std::vector<Item> items;

    // Names of items that sources declare, and those of their pictures without extension.
    std::map<Text, Text> itemNames;

    // The table of spoken lines beside the sources, and what it has to hold now; no path if nobody speaks.
    struct VoiceTable {
        std::filesystem::path path;
        std::string text;
    };
    VoiceTable voiceTable;
};

// One script of a story and where it belongs.
struct ScriptView {
    enum class Role { start, countDown, action, item };
    const Skript& script;
    const ScriptPlaces& places;
    const StoryRoom* room = nullptr;  // null for the script of an item
    Role role = Role::item;
    std::size_t which = 0;  // of the actions of an object

    // Whether `WennParameter` can find an item there: of a room only where one is dropped on an object.
    bool knowsItem() const { return role == Role::item || (role == Role::action && which == 2); }
};

// All scripts, rooms first, in their order.
std::vector<ScriptView> scriptsOf(const Story& story);
std::vector<ScriptView> scriptsOf(const StoryRoom& room);

// What a script knows an item by: its picture without directory and extension.
Text itemName(TextView picture);
// The script file of an item: `which` is 0 for the right button, 1 for the left one, 2 for a dropped item.
Text itemScriptFile(TextView picture, std::size_t which);

}  // namespace zentrox::story
