#include "tools/prove/program.h"

#include <algorithm>
#include <set>

#include "engine/language/games.h"
#include "engine/language/limits.h"
#include "engine/language/opcodes.h"
#include "engine/language/words.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/flow.h"

namespace zentrox::prove {

namespace {

using story::argumentOf;

constexpr double millisecondsPerSecond = 1000;
constexpr int bitsOfACount = 6;  // as many as `InventarPlätze` needs
constexpr std::int32_t evilBound = 40;
constexpr std::int32_t evilBoundInSteps = 4;  // of the largest one
constexpr std::int16_t unnamed = -2;

Text nameOf(TextView argument) {
    return upper(Getrimmt(argument));
}

// A table of names and their numbers.
class Names {
public:
    std::int32_t of(const Text& name) {
        const auto [at, isNew] = numbers_.emplace(name, static_cast<std::int32_t>(names.size()));
        if (isNew) names.push_back(name);
        return at->second;
    }
    std::int32_t find(const Text& name) const {
        const auto at = numbers_.find(name);
        return at == numbers_.end() ? -1 : at->second;
    }
    std::vector<Text> names;

private:
    std::map<Text, std::int32_t> numbers_;
};

// The walks of the interpreter over the blocks of a script, from one instruction to behind the one that ends it.
std::int32_t behindSkip(const std::vector<std::int32_t>& commands, std::int32_t at, int depth) {
    const auto end = static_cast<std::int32_t>(commands.size());
    const auto command = [&] { return commands[static_cast<std::size_t>(at)]; };
    do {
        if (command() == "Sonst"_op) ++depth;
        if (++at >= end) return end;
        if (divides(Block::condition, command()) || closes(Block::condition, command())) --depth;
        if (opens(Block::condition, command())) ++depth;
    } while (depth != 0);
    return at + 1;
}

// Named here, since not every compiler takes them for constants inside of a template.
constexpr std::int32_t choiceBegins = "Auswahl"_op;
constexpr std::int32_t choiceEnds = "EndeAuswahl"_op;
constexpr std::int32_t caseBegins = "Fall"_op;

template <class Fits>
std::int32_t behindCase(const Skript& script, std::int32_t at, const Fits& fits) {
    const auto end = static_cast<std::int32_t>(script.Befehl.size());
    int depth = 0;
    while (depth != -1) {
        if (++at >= end) return end;
        const std::int32_t command = script.Befehl[static_cast<std::size_t>(at)];
        if (command == choiceEnds) --depth;
        if (command == choiceBegins) ++depth;
        if (command == caseBegins && depth == 0 && fits(argumentOf(script, static_cast<std::size_t>(at)))) break;
    }
    return at + 1;
}

class Compiler {
public:
    Compiler(const story::Story& story, const Marks& marks, const std::set<Text>& counted)
        : story_(story),
          marks_(marks),
          counted_(counted) {
        program_.story = &story;
        itemNames_.of("");
    }

    Program compile() {
        nameRooms();
        addItemScripts();
        for (std::size_t i = 0; i < story_.rooms.size(); ++i) addRoom(i);
        findLivelyScripts();
        for (std::size_t i = 0; i < program_.scripts.size(); ++i) compileScript(program_.scripts[i]);
        tellEndingsApart();
        for (Script& script : program_.scripts) findActs(script);
        boundEvil();
        layOut();
        program_.flags = flags_.names;
        program_.itemNames = itemNames_.names;
        return std::move(program_);
    }

private:
    // --- what there is

    void nameRooms() {
        for (std::size_t i = 0; i < story_.rooms.size(); ++i)
            roomNumbers_.emplace(upper(story_.rooms[i].file), static_cast<std::int32_t>(i));
        program_.start = roomNamed("Start.lsd");
    }
    std::int32_t roomNamed(TextView file) const {
        const auto at = roomNumbers_.find(upper(file));
        return at == roomNumbers_.end() ? -1 : at->second;
    }

    void addItemScripts() {
        for (const story::StoryScript& script : story_.scripts) itemScripts_.emplace(upper(script.file), &script);
        for (const auto& item : story_.items) itemOf(item.picture);
        for (const story::ScriptView& view : story::scriptsOf(story_))
            for (std::size_t i = 0; i < view.script.Befehl.size(); ++i)
                if (view.script.Befehl[i] == "NimmGegenstand"_op) itemOf(argumentOf(view.script, i));
    }

    // The number of an item by its picture, made when it is named first.
    std::int32_t itemOf(TextView picture) {
        const Text file = Dateiname(picture);
        const auto [at, isNew] = items_.emplace(upper(file), static_cast<std::int32_t>(program_.items.size()));
        if (!isNew) return at->second;
        Item item;
        item.file = file;
        item.name = itemNames_.of(upper(story::itemName(file)));
        for (std::size_t which = 0; which < item.script.size(); ++which) {
            const auto script = itemScripts_.find(upper(story::itemScriptFile(file, which)));
            if (script == itemScripts_.end() || script->second->script.Befehl.empty()) continue;
            static constexpr std::array roles{ScriptRole::itemLook, ScriptRole::itemUse, ScriptRole::itemDrop};
            item.script[which] = addScript(script->second->script, script->second->places, roles[which]);
            program_.scripts.back().item = at->second;
        }
        program_.items.push_back(std::move(item));
        return at->second;
    }

    std::int32_t addScript(const Skript& source, const story::ScriptPlaces& places, ScriptRole role) {
        Script script;
        script.source = &source;
        script.places = &places;
        script.role = role;
        script.first = program_.nodeCount;
        program_.nodeCount += static_cast<std::int32_t>(source.Befehl.size()) + 1;
        program_.scripts.push_back(std::move(script));
        return static_cast<std::int32_t>(program_.scripts.size()) - 1;
    }

    void addRoom(std::size_t number) {
        const story::StoryRoom& source = story_.rooms[number];
        Room room;
        room.source = &source;
        const auto add = [&](const Skript& script, const story::ScriptPlaces& places, ScriptRole role, int object) {
            const std::int32_t index = addScript(script, places, role);
            program_.scripts.back().room = static_cast<std::int32_t>(number);
            program_.scripts.back().object = object;
            return index;
        };
        room.start = add(source.room.Startskript, source.start, ScriptRole::start, -1);
        room.countDown = add(source.room.CountDownSkript, source.countDown, ScriptRole::countDown, -1);
        Maske taken;
        for (std::size_t i = 0; i < source.room.Objekte.size(); ++i) {
            const RaumObjekt& from = source.room.Objekte[i];
            Object object;
            object.name = upper(from.Name);
            object.active = from.Aktiv;
            object.reached = takeCells(from.Maske, taken);
            for (std::size_t which = 0; which < from.Aktion.size(); ++which) {
                if (!from.HatSkript[which] || from.Aktion[which].Befehl.empty()) continue;
                static constexpr std::array roles{ScriptRole::look, ScriptRole::use, ScriptRole::drop};
                object.script[which] =
                    add(from.Aktion[which], source.objects[i].action[which], roles[which], static_cast<int>(i));
            }
            room.objects.push_back(std::move(object));
        }
        program_.rooms.push_back(std::move(room));
    }

    // Whether a mask has a cell that none before it has.
    static bool takeCells(const Maske& mask, Maske& taken) {
        bool any = false;
        for (int column = 0; column < Maskenspalten; ++column)
            for (int row = 0; row < Maskenzeilen; ++row) {
                if (!mask.at(column, row) || taken.at(column, row)) continue;
                taken.set(column, row, true);
                any = true;
            }
        return any;
    }

    // --- the scripts

    // A tick can come inside a wait only where the same script has set the count-down before.
    void findLivelyScripts() {
        for (const Script& script : program_.scripts) {
            bool running = false;
            for (std::size_t i = 0; i < script.source->Befehl.size(); ++i) {
                if (script.source->Befehl[i] == "CountDownSetzen"_op) running = running || periodOf(script, i) > 0;
                if (script.source->Befehl[i] == "Springe"_op || story::waits(*script.source, i))
                    program_.ticksInWaits = program_.ticksInWaits || running;
            }
        }
    }
    static std::int32_t periodOf(const Script& script, std::size_t index) {
        return std::max(Runden(Val(argumentOf(*script.source, index)) * millisecondsPerSecond), 0);
    }

    void compileScript(Script& script) {
        const auto end = static_cast<std::int32_t>(script.source->Befehl.size());
        script.nodes.resize(static_cast<std::size_t>(end) + 1);
        for (std::int32_t i = 0; i < end; ++i) {
            Node& node = script.nodes[static_cast<std::size_t>(i)];
            node.next = i + 1;
            fill(script, i, node);
            nameEnding(script, i, node);
        }
        script.nodes.back().next = script.nodes.back().other = end;
        program_.decisionOf.resize(static_cast<std::size_t>(program_.nodeCount), -1);
        for (std::int32_t i = 0; i < end; ++i) {
            const Op op = script.nodes[static_cast<std::size_t>(i)].op;
            if (op != Op::choice && op != Op::game) continue;
            program_.decisionOf[static_cast<std::size_t>(script.first + i)] =
                static_cast<std::int32_t>(program_.decisions.size());
            program_.decisions.emplace_back(static_cast<std::int32_t>(&script - program_.scripts.data()), i);
        }
    }

    void fill(const Script& script, std::int32_t i, Node& node) {
        const auto index = static_cast<std::size_t>(i);
        const auto& commands = script.source->Befehl;
        const TextView argument = argumentOf(*script.source, index);
        const Opcode* const row = findOpcode(commands[index]);
        switch (commands[index]) {
            case "WennMerker"_op:
                node.op = Op::testFlag;
                node.a = flagOf(argument);
                node.other = behindSkip(commands, i, 1);
                return;
            case "WennParameter"_op:
                node.op = Op::testItem;
                node.a = itemNames_.of(nameOf(argument));
                node.other = behindSkip(commands, i, 1);
                return;
            case "Sonst"_op: node.next = behindSkip(commands, i, 0); return;
            case "Fall"_op: node.next = behindCase(*script.source, i, [](TextView) { return false; }); return;
            case "Springe"_op: node.next = jumpTarget(script, index); return;
            case "SetzeMerker"_op: return change(node, Op::set, flagOf(argument));
            case "LöscheMerker"_op: return change(node, Op::clear, flagOf(argument));
            case "NimmGegenstand"_op: return change(node, Op::take, itemOf(argument));
            case "GibGegenstand"_op: {
                const auto item = items_.find(upper(Dateiname(argument)));
                return change(node, Op::give, item == items_.end() ? -1 : item->second);
            }
            case "BöseÄndern"_op: return change(node, Op::evil, Runden(Val(argument)));
            case "CountDownSetzen"_op:
                node.op = Op::countDown;
                node.a = periodOf(script, index);
                return;
            case "Raumwechsel"_op:
                node.op = Op::room;
                node.a = roomNamed(argument);
                return;
            case "Auswahl"_op: return choice(script, i, node);
            case "Spiel"_op: return game(argument, node);
            case "System"_op: return system(argument, node);
            default: break;
        }
        if (row != nullptr && row->arg == Arg::object) {
            node.op = Op::object;
            node.a = objectNames_.of(upper(argument));
            node.on = row->name == "ObjektAn";
        } else if (program_.ticksInWaits && story::waits(*script.source, index)) {
            node.op = Op::wait;
        }
    }

    static void change(Node& node, Op op, std::int32_t what) {
        const bool nobody = what == -1 && op != Op::evil;
        if (nobody || (op == Op::evil && what == 0)) return;
        node.op = op;
        node.a = what;
    }

    std::int32_t jumpTarget(const Script& script, std::size_t index) const {
        const auto& commands = script.source->Befehl;
        const Text label = nameOf(argumentOf(*script.source, index));
        for (std::size_t i = 0; i < commands.size(); ++i)
            if (commands[i] == "Marke"_op && nameOf(argumentOf(*script.source, i)) == label)
                return static_cast<std::int32_t>(i) + 1;
        return static_cast<std::int32_t>(index) + 1;
    }

    void choice(const Script& script, std::int32_t i, Node& node) {
        node.op = Op::choice;
        node.a = std::clamp(story::optionCount(argumentOf(*script.source, static_cast<std::size_t>(i))), 0,
                            MeisteOptionen);
        for (std::int32_t option = 1; option <= node.a; ++option)
            node.cases.push_back(caseTarget(*script.source, i, option));
    }

    void game(TextView argument, Node& node) {
        node.a = flagOf(Feld(argument, ",", 2));
        node.op = findSpiel(nameOf(Feld(argument, ",", 1))) != nullptr ? Op::game : Op::clear;
        if (node.op == Op::clear && node.a == -1) node.op = Op::nothing;
    }

    void system(TextView argument, Node& node) {
        if (argument == systemwort::Save || argument == systemwort::Open) return;  // they lead nowhere new
        node.op = argument == systemwort::Abspann ? (program_.ticksInWaits ? Op::wait : Op::nothing) : Op::leave;
        node.ending = unnamed;
    }

    // A flag without a name is always set, and nothing changes it.
    std::int32_t flagOf(TextView argument) {
        const Text name = nameOf(argument);
        return name.empty() ? -1 : flags_.of(name);
    }

    // --- endings

    // The author's name for it, or of a word of `System` its own, apart for each place in the source.
    void nameEnding(const Script& script, std::int32_t i, Node& node) {
        const story::Place& place = script.places->commands[static_cast<std::size_t>(i)].command;
        const auto mark = marks_.find({place.file, place.line});
        if (mark != marks_.end()) {
            node.ending = ending({mark->second.name, true, {}});
        } else if (node.ending == unnamed) {
            const Text word = Trim(argumentOf(*script.source, static_cast<std::size_t>(i)));
            node.ending = ending({word.empty() ? "System" : toUtf8(word), false, place});
        }
    }
    std::int16_t ending(Ending found) {
        const auto at = std::find_if(program_.endings.begin(), program_.endings.end(), [&](const Ending& e) {
            return e.name == found.name && e.named == found.named && e.place == found.place;
        });
        if (at != program_.endings.end()) return static_cast<std::int16_t>(at - program_.endings.begin());
        program_.endings.push_back(std::move(found));
        return static_cast<std::int16_t>(program_.endings.size() - 1);
    }
    // Of several that are called alike each says where it stands.
    void tellEndingsApart() {
        std::map<std::string, int> count;
        for (const Ending& ending : program_.endings) ++count[ending.name];
        for (Ending& ending : program_.endings)
            if (!ending.named && count[ending.name] > 1)
                ending.name += " (" + story_.files[static_cast<std::size_t>(ending.place.file)] + ":" +
                               std::to_string(ending.place.line) + ")";
    }

    // --- shortcuts

    static bool isStraight(const Script& script, std::int32_t i) {
        const Node& node = script.nodes[static_cast<std::size_t>(i)];
        return node.op == Op::nothing && node.ending == -1 && node.next == i + 1;
    }
    static void findActs(Script& script) {
        for (auto i = static_cast<std::int32_t>(script.nodes.size()) - 1; i >= 0; --i) {
            Node& node = script.nodes[static_cast<std::size_t>(i)];
            const auto end = static_cast<std::int32_t>(script.nodes.size()) - 1;
            node.acts = i < end && isStraight(script, i) ? script.nodes[static_cast<std::size_t>(i) + 1].acts : i;
        }
        findIdleRests(script);
    }
    // A rest is idle if no way leads from it to anything that acts or goes round.
    static void findIdleRests(Script& script) {
        for (auto i = static_cast<std::int32_t>(script.nodes.size()) - 1; i >= 0; --i) {
            Node& node = script.nodes[static_cast<std::size_t>(i)];
            const auto end = static_cast<std::int32_t>(script.nodes.size()) - 1;
            const auto idle = [&](std::int32_t target) {
                return target > i && script.nodes[static_cast<std::size_t>(target)].restIsIdle;
            };
            const bool tests = node.op == Op::testFlag || node.op == Op::testItem;
            const bool quiet = tests || ((node.op == Op::nothing || node.op == Op::wait) && node.ending == -1);
            node.restIsIdle = i == end || (quiet && idle(node.next) && (!tests || idle(node.other)));
        }
    }

    // Points that nobody takes away, or nobody adds, count no further than to the edge of the flag.
    void boundEvil() {
        program_.evilFlag = flags_.of(Text("BÖSE"_t));
        std::int64_t up = 0;
        std::int64_t down = 0;
        for (const Script& script : program_.scripts)
            for (const Node& node : script.nodes) {
                if (node.op != Op::evil) continue;
                up = std::max<std::int64_t>(up, node.a);
                down = std::max<std::int64_t>(down, -static_cast<std::int64_t>(node.a));
            }
        const std::int64_t bound =
            std::clamp<std::int64_t>(evilBoundInSteps * std::max(up, down), evilBound, 30000);
        program_.evilIsCut = up > 0 && down > 0;
        program_.evilMost = up == 0 ? 0 : program_.evilIsCut ? static_cast<std::int32_t>(bound) : 1;
        program_.evilLeast = down == 0 || !program_.evilIsCut ? 0 : -static_cast<std::int32_t>(bound);
    }

    // --- the layout

    void layOut() {
        Layout& layout = program_.layout;
        int bit = 0;
        layout.countDown = bit++;
        for (std::size_t i = 0; i < flags_.names.size(); ++i) program_.flagBit.push_back(bit++);
        for (Item& item : program_.items) {
            item.bit = bit;
            item.bits = counted_.contains(upper(item.file)) ? bitsOfACount : 1;
            bit += item.bits;
        }
        program_.bagCanFill = !counted_.empty() || program_.items.size() > static_cast<std::size_t>(InventarPlätze);
        layout.firstObject = bit;
        layout.bits = bit + switchedObjects();
    }

    // Objects that some script switches have a bit; those of one room share their places with those of the others.
    int switchedObjects() {
        int most = 0;
        for (Room& room : program_.rooms) {
            int count = 0;
            for (Object& object : room.objects) {
                if (objectNames_.find(object.name) == -1) continue;
                object.bit = program_.layout.firstObject + count++;
                if (object.active) room.onAtFirst.push_back(object.bit);
            }
            most = std::max(most, count);
        }
        noteObjects();
        return most;
    }
    void noteObjects() {
        program_.objectBits.resize(objectNames_.names.size());
        for (std::size_t r = 0; r < program_.rooms.size(); ++r)
            for (const Object& object : program_.rooms[r].objects)
                if (object.bit != -1)
                    program_
                        .objectBits[static_cast<std::size_t>(objectNames_.find(object.name))]
                                   [static_cast<std::int32_t>(r)]
                        .push_back(object.bit);
    }

    const story::Story& story_;
    const Marks& marks_;
    const std::set<Text>& counted_;
    Program program_;
    Names flags_;
    Names itemNames_;
    Names objectNames_;
    std::map<Text, std::int32_t> roomNumbers_;
    std::map<Text, std::int32_t> items_;
    std::map<Text, const story::StoryScript*> itemScripts_;
};

}  // namespace

std::int32_t caseTarget(const Skript& script, std::int32_t index, std::int32_t option) {
    return behindCase(script, index, [option](TextView argument) { return Val(argument) == option; });
}

Program compile(const story::Story& story, const Marks& marks, const std::set<Text>& counted) {
    return Compiler(story, marks, counted).compile();
}

}  // namespace zentrox::prove
