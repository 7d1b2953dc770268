// What only the rooms together show: those that the game opens by itself, ways to each of them, and objects that no
// click reaches.
#include <algorithm>
#include <map>
#include <set>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/check.h"

namespace zentrox::story {

namespace {

constexpr TextView first = "Start.lsd";
constexpr TextView loading = "Laden.lsd";

// How rooms are told apart: in upper case, with backslashes.
Text keyOf(TextView path) {
    Text key = upper(path);
    std::replace(key.begin(), key.end(), '/', '\\');
    return key;
}

// Where the scripts of a story lead, from the room that they belong to; those of items lead there from everywhere.
struct Ways {
    std::map<Text, std::set<Text>> from;
    std::set<Text> fromItems;
};

void noteWays(const Story& story, Ways& ways) {
    for (const ScriptView& view : scriptsOf(story)) {
        auto& targets = view.room ? ways.from[keyOf(view.room->file)] : ways.fromItems;
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i)
            if (view.script.Befehl[i] == "Raumwechsel"_op) targets.insert(keyOf(argumentOf(view.script, i)));
    }
}

std::set<Text> reachedFrom(const Ways& ways, std::vector<Text> todo) {
    todo.insert(todo.end(), ways.fromItems.begin(), ways.fromItems.end());
    std::set<Text> reached(todo.begin(), todo.end());
    while (!todo.empty()) {
        const auto at = ways.from.find(todo.back());
        todo.pop_back();
        if (at == ways.from.end()) continue;
        for (const Text& room : at->second)
            if (reached.insert(room).second) todo.push_back(room);
    }
    return reached;
}

bool hasRoom(const Story& story, const Story* rest, TextView file) {
    const auto same = [file](const StoryRoom& room) { return equalIgnoringCase(room.file, file); };
    return std::any_of(story.rooms.begin(), story.rooms.end(), same) ||
           (rest && std::any_of(rest->rooms.begin(), rest->rooms.end(), same));
}

void checkWays(const Story& story, const Story* rest, Findings& findings) {
    Ways ways;
    noteWays(story, ways);
    if (rest) noteWays(*rest, ways);
    const auto reached = reachedFrom(ways, {keyOf(first), keyOf(loading)});
    for (const StoryRoom& room : story.rooms)
        if (!reached.contains(keyOf(room.file)))
            findings.warning(room.head, "raum-ohne-weg",
                             "in den Raum " + shown(room.file) +
                                 " führt kein Weg, der in Start.lsd beginnt; das täte Raumwechsel " +
                                 shown(room.file));
}

// --- objects

bool hasScript(const RaumObjekt& object) {
    return std::any_of(object.HatSkript.begin(), object.HatSkript.end(), [](bool has) { return has; });
}

// The object that takes the click in each cell is the first one that has it, active or not.
void checkObjects(const StoryRoom& room, bool emptyOnes, Findings& findings) {
    const auto& objects = room.room.Objekte;
    std::vector<std::size_t> takers(static_cast<std::size_t>(Maskenspalten) * Maskenzeilen, objects.size());
    for (std::size_t n = 0; n < objects.size(); ++n) {
        bool any = false;
        bool free = false;
        std::size_t above = objects.size();
        for (int column = 0; column < Maskenspalten; ++column)
            for (int row = 0; row < Maskenzeilen; ++row) {
                if (!objects[n].Maske.at(column, row)) continue;
                any = true;
                auto& taker =
                    takers[static_cast<std::size_t>(column) * Maskenzeilen + static_cast<std::size_t>(row)];
                if (taker == objects.size()) {
                    taker = n;
                    free = true;
                } else {
                    above = taker;
                }
            }
        const Place place = room.objects[n].name;
        if (!any && emptyOnes && hasScript(objects[n]))
            findings.warning(
                place, "flaeche-leer",
                "das Objekt " + shown(objects[n].Name) +
                    " hat keine Fläche, niemand kann es anklicken; es braucht ein Rechteck, ein Vieleck "
                    "oder ein Maskenbild");
        else if (any && !free)
            findings.warning(
                place, "verdeckt",
                "das Objekt " + shown(objects[n].Name) + " liegt ganz unter " + shown(objects[above].Name) +
                    ", jeder Klick gilt jenem, auch wenn es aus ist; was oben liegen soll, steht weiter "
                    "oben im Raum");
    }
}

}  // namespace

void checkRooms(const Story& story, const Surroundings& around, bool wholeStory, Findings& findings) {
    for (const StoryRoom& room : story.rooms) {
        checkObjects(room, around.wholeGame, findings);
        if (room.file.find('\\') != Text::npos)
            findings.warning(room.head, "raum-verzeichnis",
                             "ein Spielstand merkt sich von " + shown(room.file) + " nur " +
                                 shown(Dateiname(room.file)) +
                                 ", geladen würde er nie; Räume gehören ohne Verzeichnis nach rooms");
    }
    if (!wholeStory || !around.wholeGame || story.rooms.empty()) return;
    const Place place = story.rooms.front().head;
    if (!hasRoom(story, around.rest, first))
        return findings.error(place, "start-fehlt",
                              "einen Raum \"Start.lsd\" gibt es nicht; in ihm beginnt jedes neue Spiel");
    if (!hasRoom(story, around.rest, loading))
        findings.warning(
            place, "laden-fehlt",
            "einen Raum \"Laden.lsd\" gibt es nicht; ihn öffnet das Menü mit \"Altes Spiel laden\", und "
            "sein Start ist System Open und darunter System Ende");
    checkWays(story, around.rest, findings);
}

}  // namespace zentrox::story
