// What only the whole story shows: flags that nobody sets or tests, more items than the inventory holds, files that
// are named and not there.
#include <algorithm>
#include <map>
#include <set>

#include "engine/interpreter/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/check.h"
#include "tools/story/flow.h"

namespace zentrox::story {

namespace {

// --- flags

struct FlagUse {
    bool set = false;
    bool tested = false;
    std::optional<Place> firstSet;  // by `SetzeMerker`, in the part that is checked
    std::optional<Place> firstTest;
};
using FlagUses = std::map<Text, FlagUse>;

Text nameOf(TextView argument) {
    return upper(Getrimmt(argument));
}

void noteFlags(const Story& story, bool checked, FlagUses& uses) {
    for (const ScriptView& view : scriptsOf(story)) {
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) {
            const TextView argument = argumentOf(view.script, i);
            const std::int32_t command = view.script.Befehl[i];
            if (command == opcode::BöseÄndern) uses[Text("BÖSE"_t)].set = true;
            if (command == opcode::Spiel) uses[nameOf(Feld(argument, ",", 2))].set = true;
            if (command != opcode::SetzeMerker && command != opcode::WennMerker) continue;
            FlagUse& use = uses[nameOf(argument)];
            (command == opcode::SetzeMerker ? use.set : use.tested) = true;
            auto& first = command == opcode::SetzeMerker ? use.firstSet : use.firstTest;
            if (checked && !first) first = view.places.argument(i);
        }
    }
}

// --- items

// The most items that one run of a script can bring, jumps back aside: beyond what the inventory holds it is an
// error, whatever the player carried before.
void checkItemsOfRun(const ScriptView& view, Findings& findings) {
    const auto& commands = view.script.Befehl;
    if (std::count(commands.begin(), commands.end(), opcode::NimmGegenstand) <= InventarPlätze) return;
    const Blocks blocks = findBlocks(view.script);
    if (!blocks.problems.empty()) return;
    const Flow flow = findFlow(view.script, blocks);
    std::vector<int> carried(commands.size() + 1, 0);
    for (std::size_t i = 0; i < commands.size(); ++i) {
        int count = carried[i];
        if (commands[i] == opcode::NimmGegenstand) ++count;
        if (commands[i] == opcode::GibGegenstand) count = std::max(0, count - 1);
        if (count > InventarPlätze && flow.reached[i]) {
            findings.error(view.places.commands[i].command, "gegenstaende",
                           "dieses Skript gibt mehr als " + std::to_string(InventarPlätze) +
                               " Gegenstände; mehr trägt niemand");
            return;
        }
        for (const std::size_t next : flow.next[i])
            if (next > i) carried[next] = std::max(carried[next], count);
    }
}

struct ItemUse {
    std::optional<Place> firstTaken;
    bool taken = false;
    bool given = false;
};

void noteItems(const Story& story, bool checked, std::map<Text, ItemUse>& uses) {
    for (const ScriptView& view : scriptsOf(story)) {
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) {
            const std::int32_t command = view.script.Befehl[i];
            if (command != opcode::NimmGegenstand && command != opcode::GibGegenstand) continue;
            ItemUse& use = uses[upper(Dateiname(argumentOf(view.script, i)))];
            (command == opcode::NimmGegenstand ? use.taken : use.given) = true;
            if (command == opcode::NimmGegenstand && checked && !use.firstTaken)
                use.firstTaken = view.places.argument(i);
        }
    }
}

// --- files

struct FileKind {
    Arg arg;
    int field;  // 0 for the whole argument
    const char* directory;
    const char* code;
    const char* what;
};
constexpr std::array fileKinds{
    FileKind{Arg::sound, 0, "sounds", "ton-fehlt", "die Tondatei"},
    FileKind{Arg::picture, 0, "graphics", "bild-fehlt", "das Bild"},
    FileKind{Arg::item, 0, "items", "gegenstand-fehlt", "das Bild des Gegenstands"},
    FileKind{Arg::video, 0, "movies", "film-fehlt", "der Film"},
    FileKind{Arg::objectPointer, 2, "cursors", "zeiger-fehlt", "der Zeiger"},
    FileKind{Arg::portrait, 2, "graphics", "bild-fehlt", "das Bild"},
    FileKind{Arg::music, 1, "musics", "musik-fehlt", "die Musik"},
};

class FileChecker {
public:
    FileChecker(const Story& story, const Surroundings& around, Findings& findings)
        : story_(story),
          data_(*around.data),
          findings_(findings) {
        for (const Story* part : {&story, around.rest})
            for (std::size_t i = 0; part && i < part->rooms.size(); ++i) rooms_.insert(upper(part->rooms[i].file));
    }

    void all() {
        for (const StoryRoom& room : story_.rooms) {
            need(room.picture, "graphics", room.room.Bild, "bild-fehlt", "das Bild");
            for (std::size_t i = 0; i < room.room.Objekte.size(); ++i)
                need(room.objects[i].pointer, "cursors", room.room.Objekte[i].Zeiger, "zeiger-fehlt", "der Zeiger");
        }
        for (const Story::Item& item : story_.items)
            need(item.place, "items", item.picture, "gegenstand-fehlt", "das Bild des Gegenstands");
        for (const ScriptView& view : scriptsOf(story_))
            for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) instruction(view, i);
    }

private:
    void missing(Place place, TextView file, const char* directory, const char* code, const char* what) {
        findings_.warning(place, code, std::string(what) + " " + shown(file) + " fehlt in " + directory);
    }

    void need(Place place, const char* directory, TextView path, const char* code, const char* what) {
        const Text file = Dateiname(path);
        if (!file.empty() && !data_.has(directory, file)) missing(place, file, directory, code, what);
    }

    void instruction(const ScriptView& view, std::size_t i) {
        const Opcode* const row = findOpcode(view.script.Befehl[i]);
        if (!row) return;
        const TextView argument = argumentOf(view.script, i);
        const auto& places = view.places.commands[i].argument;
        if (row->arg == Arg::room) return room(view.places.argument(i), argument);
        for (const FileKind& kind : fileKinds) {
            if (kind.arg != row->arg) continue;
            const Text field = kind.field == 0 ? Text(argument) : Trim(Feld(argument, ",", kind.field));
            const bool ownPlace = kind.field == 2 && places.size() > 1;
            const Place place = ownPlace ? places[1] : view.places.argument(i);
            if (kind.arg == Arg::sound && data_.hasSound(field)) return;
            return need(place, kind.directory, field, kind.code, kind.what);
        }
    }

    void room(Place place, TextView path) {
        Text name = upper(path);
        std::replace(name.begin(), name.end(), '/', '\\');
        if (Dateiname(path).empty() || rooms_.contains(name) || data_.hasRoom(path)) return;
        missing(place, path, "rooms", "raum-fehlt", "der Raum");
    }

    const Story& story_;
    const DataFiles& data_;
    Findings& findings_;
    std::set<Text> rooms_;
};

}  // namespace

void checkFlags(const Story& story, const Story* rest, Findings& findings) {
    FlagUses uses;
    noteFlags(story, true, uses);
    if (rest) noteFlags(*rest, false, uses);
    std::vector<Text> known;
    for (const auto& [name, use] : uses)
        if (use.set) known.push_back(name);
    for (const auto& [name, use] : uses) {
        if (name.empty()) continue;  // a finding of its own
        if (use.firstTest && !use.set)
            findings.warning(
                *use.firstTest, "merker-nie-gesetzt",
                "der Merker " + shown(name) + " wird geprüft, aber nirgends gesetzt" + perhaps(name, known));
        if (use.firstSet && !use.tested)
            findings.warning(*use.firstSet, "merker-nie-geprueft",
                             "der Merker " + shown(name) + " wird gesetzt, aber nirgends geprüft");
    }
}

void checkItems(const Story& story, const Story* rest, Findings& findings) {
    for (const ScriptView& view : scriptsOf(story)) checkItemsOfRun(view, findings);
    std::map<Text, ItemUse> uses;
    noteItems(story, true, uses);
    if (rest) noteItems(*rest, false, uses);
    std::vector<Place> kept;
    std::size_t count = 0;
    for (const auto& [name, use] : uses) {
        if (!use.taken || use.given) continue;
        ++count;
        if (use.firstTaken) kept.push_back(*use.firstTaken);
    }
    if (count <= static_cast<std::size_t>(InventarPlätze) || kept.empty()) return;
    std::sort(kept.begin(), kept.end());
    findings.error(kept[std::min(kept.size() - 1, static_cast<std::size_t>(InventarPlätze))], "gegenstaende",
                   std::to_string(count) +
                       " Gegenstände werden genommen und nie wieder gegeben; niemand trägt mehr als " +
                       std::to_string(InventarPlätze));
}

void checkFiles(const Story& story, const Surroundings& around, Findings& findings) {
    FileChecker(story, around, findings).all();
}

}  // namespace zentrox::story
