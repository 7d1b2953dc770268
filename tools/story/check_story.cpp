// What only the whole story shows: flags that nobody sets or tests, items that nobody takes, and more of them than
// the inventory holds.
#include <algorithm>
#include <map>
#include <set>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/check.h"
#include "tools/story/flow.h"
#include "tools/story/names.h"

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
            if (command == "BöseÄndern"_op) uses[Text("BÖSE"_t)].set = true;
            if (command == "Spiel"_op) uses[nameOf(Feld(argument, ",", 2))].set = true;
            if (command != "SetzeMerker"_op && command != "WennMerker"_op) continue;
            FlagUse& use = uses[nameOf(argument)];
            (command == "SetzeMerker"_op ? use.set : use.tested) = true;
            auto& first = command == "SetzeMerker"_op ? use.firstSet : use.firstTest;
            if (checked && !first) first = view.places.argument(i);
        }
    }
}

// --- items

// The most items that one run of a script can bring, jumps back aside: beyond what the inventory holds it is an
// error, whatever the player carried before.
void checkItemsOfRun(const ScriptView& view, Findings& findings) {
    const auto& commands = view.script.Befehl;
    if (std::count(commands.begin(), commands.end(), "NimmGegenstand"_op) <= InventarPlätze) return;
    const Blocks blocks = findBlocks(view.script);
    if (!blocks.problems.empty()) return;
    const Flow flow = findFlow(view, blocks);
    std::vector<int> carried(commands.size() + 1, 0);
    for (std::size_t i = 0; i < commands.size(); ++i) {
        int count = carried[i];
        if (commands[i] == "NimmGegenstand"_op) ++count;
        if (commands[i] == "GibGegenstand"_op) count = std::max(0, count - 1);
        if (count > InventarPlätze && flow.reached[i]) {
            findings.error(view.places.commands[i].command, "gegenstaende",
                           "dieses Skript gibt mehr als " + std::to_string(InventarPlätze) +
                               " Gegenstände, mehr trägt niemand; vorher müssen welche mit GibGegenstand fort");
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
            if (command != "NimmGegenstand"_op && command != "GibGegenstand"_op) continue;
            ItemUse& use = uses[upper(Dateiname(argumentOf(view.script, i)))];
            (command == "NimmGegenstand"_op ? use.taken : use.given) = true;
            if (command == "NimmGegenstand"_op && checked && !use.firstTaken)
                use.firstTaken = view.places.argument(i);
        }
    }
}

void noteTaken(const Story& story, std::set<Text>& taken) {
    for (const ScriptView& view : scriptsOf(story))
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i)
            if (view.script.Befehl[i] == "NimmGegenstand"_op)
                taken.insert(upper(itemName(argumentOf(view.script, i))));
}

}  // namespace

void checkDropped(const Story& story, const Story* rest, Findings& findings) {
    std::set<Text> taken;
    noteTaken(story, taken);
    if (rest) noteTaken(*rest, taken);
    const std::vector<Text> names(taken.begin(), taken.end());
    for (const ScriptView& view : scriptsOf(story)) {
        if (!view.knowsItem()) continue;  // there the condition is never true for whatever item
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) {
            if (view.script.Befehl[i] != "WennParameter"_op) continue;
            const Text name = nameOf(argumentOf(view.script, i));
            if (name.empty() || taken.contains(name)) continue;
            const std::string hint = perhaps(name, names);
            findings.warning(view.places.argument(i), "gegenstand-nie-genommen",
                             "einen Gegenstand " + shown(name) + " nimmt niemand, diese Bedingung ist nie wahr" +
                                 (hint.empty() ? "; hier steht der Name seines Bildes ohne Endung" : hint));
        }
    }
}

void checkFlags(const Story& story, const Story* rest, Findings& findings) {
    FlagUses uses;
    noteFlags(story, true, uses);
    if (rest) noteFlags(*rest, false, uses);
    std::vector<Text> set;
    std::vector<Text> tested;
    for (const auto& [name, use] : uses) {
        if (use.set) set.push_back(name);
        if (use.tested) tested.push_back(name);
    }
    const auto otherwise = [](const std::string& hint, const char* advice) { return hint.empty() ? advice : hint; };
    for (const auto& [name, use] : uses) {
        if (name.empty()) continue;          // a finding of its own
        const auto item = itemOfFlag(name);  // a flag of the compiler's own
        if (item && use.firstTest && !use.set)
            findings.warning(*use.firstTest, "gegenstand-nie-genommen",
                             "einen Gegenstand " + shown(*item) + " nimmt niemand, diese Bedingung ist nie wahr");
        else if (use.firstTest && !use.set)
            findings.warning(*use.firstTest, "merker-nie-gesetzt",
                             "der Merker " + shown(name) + " wird geprüft, aber nirgends gesetzt" +
                                 otherwise(perhaps(name, set), "; das täten SetzeMerker oder Spiel"));
        if (use.firstSet && !use.tested && !item)
            findings.warning(*use.firstSet, "merker-nie-geprueft",
                             "der Merker " + shown(name) + " wird gesetzt, aber nirgends geprüft" +
                                 otherwise(perhaps(name, tested), "; das täte WennMerker"));
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
                       " Gegenstände werden genommen und nie wieder gegeben, niemand trägt mehr als " +
                       std::to_string(InventarPlätze) + "; die übrigen müssen mit GibGegenstand fort");
}

}  // namespace zentrox::story
