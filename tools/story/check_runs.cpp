// What the ways through a script show: instructions that no run reaches, loops that never wait, and saving while a
// count-down runs.
#include <algorithm>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/check.h"
#include "tools/story/flow.h"

namespace zentrox::story {

namespace {

constexpr double millisecondsPerSecond = 1000;

void checkReach(const ScriptView& view, const Flow& flow, Findings& findings) {
    const auto& commands = view.script.Befehl;
    bool told = false;  // one finding for a row of them
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if (flow.reached[i]) told = false;
        if (flow.reached[i] || isMark(commands[i]) || view.places.commands[i].made || told) continue;
        told = true;
        const Place place = view.places.commands[i].command;
        const std::int32_t before = i > 0 ? commands[i - 1] : "Marke"_op;
        if (before == "Raumwechsel"_op)
            findings.warning(
                place, "nach-raumwechsel",
                "hinter einem Raumwechsel läuft kein Befehl mehr; was noch geschehen soll, gehört davor");
        else if (before == "WennParameter"_op)
            findings.warning(
                place, "unerreichbar",
                "dieser Befehl läuft nie: hier wird nichts abgelegt, WennParameter gehört unter Ablegen");
        else if (before == "Auswahl"_op)
            findings.warning(
                place, "unerreichbar",
                "zwischen einer Auswahl und ihrem ersten Fall läuft nichts; dieser Befehl gehört davor "
                "oder in einen Fall");
        else
            findings.warning(
                place, "unerreichbar",
                "hierher führt kein Weg, dieser Befehl läuft nie; er gehört weiter nach vorn oder weg");
    }
}

// What the count-down can be doing, as a set.
using CountDown = unsigned;
constexpr CountDown asBefore = 1;  // as it was when the script began
constexpr CountDown off = 2;
constexpr CountDown on = 4;

struct CountDownRun {
    std::vector<CountDown> at;  // before each instruction
    CountDown atEnd = 0;
};

CountDown behind(const Skript& script, std::size_t i, CountDown before) {
    if (script.Befehl[i] != "CountDownSetzen"_op) return before;
    return Runden(Val(argumentOf(script, i)) * millisecondsPerSecond) == 0 ? off : on;
}

CountDownRun followCountDown(const Skript& script, const Flow& flow) {
    CountDownRun run;
    run.at.assign(script.Befehl.size(), 0);
    if (script.Befehl.empty()) run.atEnd = asBefore;
    std::vector<std::size_t> todo;
    const auto arrive = [&](std::size_t i, CountDown with) {
        CountDown& present = i < run.at.size() ? run.at[i] : run.atEnd;
        if ((present | with) != present && i < run.at.size()) todo.push_back(i);
        present |= with;
    };
    if (!script.Befehl.empty()) arrive(0, asBefore);
    while (!todo.empty()) {
        const std::size_t i = todo.back();
        todo.pop_back();
        // A room change ends the count-down of this room; what it leaves behind is no end of this script.
        if (script.Befehl[i] == "Raumwechsel"_op) continue;
        for (const std::size_t next : flow.next[i]) arrive(next, behind(script, i, run.at[i]));
    }
    return run;
}

bool switchesOff(const Skript& script) {
    for (std::size_t i = 0; i < script.Befehl.size(); ++i)
        if (script.Befehl[i] == "CountDownSetzen"_op && behind(script, i, asBefore) == off) return true;
    return false;
}

bool hasSave(const Skript& script) {
    for (std::size_t i = 0; i < script.Befehl.size(); ++i)
        if (script.Befehl[i] == "System"_op && argumentOf(script, i) == "Save") return true;
    return false;
}

// What the count-down is doing when a script of this kind begins: at the room's entry it is off; its own script
// runs only while it is on; and for the others it is surely on if the start script leaves it so and nothing stops
// it.
CountDown atBegin(ScriptView::Role role, bool surelyOn) {
    switch (role) {
        case ScriptView::Role::start: return off;
        case ScriptView::Role::countDown: return on;
        case ScriptView::Role::action: return surelyOn ? on : on | off;
        case ScriptView::Role::item: break;
    }
    return on | off;
}

bool isSurelyOn(const StoryRoom& room, const std::vector<ScriptView>& views) {
    const Blocks blocks = findBlocks(room.room.Startskript);
    if (!blocks.problems.empty()) return false;
    const CountDownRun run = followCountDown(room.room.Startskript, findFlow(views.front(), blocks));
    return run.atEnd == on && std::none_of(views.begin(), views.end(),
                                           [](const ScriptView& view) { return switchesOff(view.script); });
}

void checkSaves(const ScriptView& view, CountDown before, Findings& findings) {
    const Blocks blocks = findBlocks(view.script);
    if (!blocks.problems.empty()) return;
    const CountDownRun run = followCountDown(view.script, findFlow(view, blocks));
    for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) {
        if (view.script.Befehl[i] != "System"_op || argumentOf(view.script, i) != "Save") continue;
        const CountDown state = (run.at[i] & asBefore) != 0 ? (run.at[i] & ~asBefore) | before : run.at[i];
        if (state == on)
            findings.warning(view.places.commands[i].command, "speichern",
                             "hier läuft der Countdown, und dann verweigert das Spiel das Speichern; davor gehört "
                             "CountDownSetzen 0");
    }
}

// A script stops the count-down while it runs; one that arms it itself is ticked in its own waits.
void checkTicks(const ScriptView& view, const Flow& flow, Findings& findings) {
    const CountDownRun run = followCountDown(view.script, flow);
    for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) {
        const bool system = view.script.Befehl[i] == "System"_op;  // what is wrong with that is told elsewhere
        if ((run.at[i] & on) == 0 || !waits(view.script, i) || system) continue;
        findings.warning(view.places.commands[i].command, "countdown-wartet",
                         "hier läuft schon der Countdown, den dieses Skript gestellt hat, und sein Skript käme "
                         "mitten in diesem Befehl; CountDownSetzen gehört hinter alles, was wartet");
        return;
    }
}

}  // namespace

void checkRun(const ScriptView& view, Findings& findings) {
    const Blocks blocks = findBlocks(view.script);
    if (!blocks.problems.empty()) return;  // the ways through are anybody's guess
    const Flow flow = findFlow(view, blocks);
    checkReach(view, flow, findings);
    checkTicks(view, flow, findings);
    for (const std::size_t i : busyLoops(view.script, flow))
        findings.warning(
            view.places.commands[i].command, "schleife",
            "diese Schleife wartet nirgends, das Spiel bliebe darin stehen; in eine Schleife gehört ein "
            "Befehl, der wartet, etwa Text oder Auswahl");
    if (view.role == ScriptView::Role::item && hasSave(view.script))
        checkSaves(view, atBegin(view.role, false), findings);
}

void checkRuns(const StoryRoom& room, Findings& findings) {
    const auto views = scriptsOf(room);
    if (std::none_of(views.begin(), views.end(), [](const ScriptView& view) { return hasSave(view.script); }))
        return;
    const bool surelyOn = isSurelyOn(room, views);
    for (const ScriptView& view : views)
        if (hasSave(view.script)) checkSaves(view, atBegin(view.role, surelyOn), findings);
}

}  // namespace zentrox::story
