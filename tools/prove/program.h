// A story in the form that the search runs: names as numbers, blocks and labels as targets, and for each
// instruction the next one that does something. One node stands for one instruction.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tools/prove/endings.h"
#include "tools/story/story.h"

namespace zentrox::prove {

enum class Op : std::uint8_t {
    nothing,
    wait,       // serves the queue: a tick can come. Only where one can, else it is nothing
    testFlag,   // a: flag, -1 for one that is always set; `next` if set, `other` if not
    testItem,   // a: name of an item
    set,        // a: flag
    clear,      // a: flag
    take,       // a: item
    give,       // a: item
    object,     // a: name of an object; on
    evil,       // a: points to add
    countDown,  // a: period in milliseconds
    room,       // a: room, -1 for one that is not there
    choice,     // a: number of options
    game,       // a: flag, -1 for none
    leave,
};

struct Node {
    Op op = Op::nothing;
    bool on = false;
    bool restIsIdle = false;   // from here on nothing happens any more but texts
    std::int16_t ending = -1;  // reached here: an index of `Program::endings`
    std::int32_t a = 0;
    std::int32_t next = 0;  // indexes of the script; its length stands for the end
    std::int32_t other = 0;
    std::int32_t acts = 0;  // this node or the first one behind it, on the straight way, that does something
    std::vector<std::int32_t> cases;  // of a choice: where option 1, 2, ... leads
};

enum class ScriptRole : std::uint8_t { start, countDown, look, use, drop, itemLook, itemUse, itemDrop };

struct Script {
    const Skript* source = nullptr;
    const story::ScriptPlaces* places = nullptr;
    ScriptRole role = ScriptRole::start;
    std::int32_t room = -1;  // -1 for the script of an item
    std::int32_t object = -1;
    std::int32_t item = -1;
    std::int32_t first = 0;   // number of its first node among all nodes of the program
    std::vector<Node> nodes;  // empty: there is nothing to run
};

struct Object {
    Text name;
    bool active = false;                             // at first
    bool reached = false;                            // some cell belongs to it alone or first
    std::int32_t bit = -1;                           // of the state, -1 if it never changes
    std::array<std::int32_t, 3> script{-1, -1, -1};  // look, use, drop; -1 where nothing runs
};

struct Room {
    const story::StoryRoom* source = nullptr;
    std::int32_t start = -1;  // scripts
    std::int32_t countDown = -1;
    std::vector<Object> objects;
    std::vector<std::int32_t> onAtFirst;  // bits of the switched objects that are active at first
};

struct Item {
    Text file;              // as it was first written
    std::int32_t name = 0;  // of `Program::itemNames`
    std::int32_t bit = 0;   // of the state, the first one
    std::int32_t bits = 1;  // more where it can be carried more than once
    std::array<std::int32_t, 3> script{-1, -1, -1};
};

struct Ending {
    std::string name;    // UTF-8
    bool named = false;  // by the author
    story::Place place;  // of one that is not
};

// How a state is laid out: a head of 64 bits, then single bits.
struct Layout {
    int countDown = 0;
    int firstObject = 0;
    int bits = 0;
    int words() const { return 1 + (bits + 63) / 64; }
};

struct Program {
    const story::Story* story = nullptr;
    std::vector<Script> scripts;
    std::vector<Room> rooms;
    std::vector<Text> flags;
    std::vector<std::int32_t> flagBit;  // of the state; -1 for one that is left out
    std::vector<Item> items;
    std::vector<Text> itemNames;  // in upper case; the first is empty
    std::vector<Ending> endings;
    // By the name of an object and a room: the bits of those that are called so there.
    std::vector<std::map<std::int32_t, std::vector<std::int32_t>>> objectBits;
    std::vector<std::pair<std::int32_t, std::int32_t>> decisions;  // script and index of each choice and game
    std::vector<std::int32_t> decisionOf;                          // by node, -1
    std::int32_t nodeCount = 0;
    std::int32_t start = -1;  // room
    std::int32_t evilFlag = -1;
    std::int32_t evilLeast = 0;  // beyond these nothing can differ, or the search does not go
    std::int32_t evilMost = 0;
    bool evilIsCut = false;  // it does not go there
    bool ticksInWaits = false;
    bool bagCanFill = false;
    Layout layout;
    // Bits that count for nothing while no script runs; `flagBit` -1: always, else as soon as that bit is set.
    struct Forgotten {
        std::int32_t flagBit;
        std::vector<std::uint64_t> bits;  // by words of the state
    };
    std::vector<Forgotten> forgotten;

    const story::Place& placeOf(std::int32_t script, std::int32_t index) const {
        const story::ScriptPlaces& places = *scripts[static_cast<std::size_t>(script)].places;
        const auto at = static_cast<std::size_t>(index);
        return at < places.commands.size() ? places.commands[at].command : places.head;
    }
};

// `story` has to outlive the program. A story without Start.lsd gives one whose `start` is -1. The items in
// `counted`, upper-case files, can be carried more than once.
Program compile(const story::Story& story, const Marks& marks, const std::set<Text>& counted = {});

// Where a choice goes on from the instruction `index` for an option, as the interpreter looks for it.
std::int32_t caseTarget(const Skript& script, std::int32_t index, std::int32_t option);

}  // namespace zentrox::prove
