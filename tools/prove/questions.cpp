#include "tools/prove/questions.h"

#include <algorithm>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"

namespace zentrox::prove {

namespace {

using story::argumentOf;

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

std::int32_t lengthOf(const Script& script) {
    return static_cast<std::int32_t>(script.source->Befehl.size());
}

bool asksFlag(const Node& node) {
    return node.op == Op::testFlag && node.a != -1;
}

std::string inMarks(TextView text) {
    return "„" + toUtf8(text) + "“";
}

std::string nameOfItem(const Item& item) {
    return inMarks(story::itemName(item.file));
}

}  // namespace

Questions::Questions(const Program& program)
    : program_(program),
      rooms_(program.rooms.size()),
      itemUsed_(program.items.size()) {
    for (const Script& script : program.scripts)
        for (std::int32_t i = 0; i < lengthOf(script); ++i) known_.try_emplace(keyOf(script, i));
    for (std::size_t i = 0; i < program.rooms.size(); ++i)
        if (equalIgnoringCase(program.rooms[i].source->file, "Laden.lsd")) loadRoom_ = static_cast<std::int32_t>(i);
}

Questions::Key Questions::keyOf(const Script& script, std::int32_t index) const {
    return {script.places->commands[at(index)].command, script.source->Befehl[at(index)]};
}

void Questions::add(const Seen& seen, const Program& by) {
    for (std::size_t s = 0; s < by.scripts.size(); ++s) {
        const Script& script = by.scripts[s];
        for (std::int32_t i = 0; i < lengthOf(script); ++i) {
            const std::uint8_t marks = seen.nodes[at(script.first + i)];
            if (marks == 0) continue;
            const bool isCase = script.source->Befehl[at(i)] == "Fall"_op;
            Known& here = known_[keyOf(script, i)];
            here.held = here.held || (marks & Seen::held) != 0;
            here.failed = here.failed || (marks & Seen::failed) != 0;
            here.chosen = here.chosen || (isCase && (marks & Seen::held) != 0);
            if ((marks & Seen::entered) == 0) continue;
            for (std::int32_t n = i; n <= script.nodes[at(i)].acts && n < lengthOf(script); ++n)
                known_[keyOf(script, n)].ran = true;
        }
    }
    for (std::size_t i = 0; i < rooms_.size(); ++i) rooms_[i] |= seen.rooms[i];
    for (std::size_t i = 0; i < itemUsed_.size(); ++i) itemUsed_[i] |= seen.itemUsed[i];
}

// The room behind the menu's second line is entered by no play, and what is loaded leads nowhere new.
bool Questions::counts(const Script& script) const {
    return script.room == -1 || script.room != loadRoom_;
}

bool Questions::isOpen(const Script& script, std::int32_t index) const {
    if (!counts(script)) return false;
    const Known& here = known(script, index);
    const Node& node = script.nodes[at(index)];
    if (script.source->Befehl[at(index)] == "Fall"_op) return !here.chosen;
    if (!here.ran) return !isMark(script.source->Befehl[at(index)]);
    if (asksFlag(node)) return here.held != here.failed;
    return node.op == Op::testItem && !here.held;
}

bool Questions::isHad(std::size_t item) const {
    for (const Script& script : program_.scripts)
        for (std::int32_t i = 0; i < lengthOf(script); ++i)
            if (const Node& node = script.nodes[at(i)];
                node.op == Op::take && at(node.a) == item && known(script, i).ran)
                return true;
    return false;
}

// What would be a use of an item that has none so far.
bool Questions::isUsefulAsked(const Script& script, std::int32_t index) const {
    if (script.item == -1 && script.role != ScriptRole::drop) return false;
    const Op op = script.nodes[at(index)].op;
    return op != Op::nothing && op != Op::wait && op != Op::testFlag;
}

bool Questions::open() const {
    for (std::size_t i = 0; i < itemUsed_.size(); ++i)
        if (!itemUsed_[i]) return true;
    for (std::size_t i = 0; i < rooms_.size(); ++i)
        if (!rooms_[i] && static_cast<std::int32_t>(i) != loadRoom_) return true;
    for (const Script& script : program_.scripts)
        for (std::int32_t i = 0; i < lengthOf(script); ++i)
            if (isOpen(script, i)) return true;
    return false;
}

bool Questions::isAsked(std::int32_t number, std::int32_t index) const {
    const Script& script = program_.scripts[at(number)];
    if (isOpen(script, index)) return true;
    // A case is chosen in its choice.
    if (script.nodes[at(index)].op == Op::choice)
        for (const std::int32_t target : script.nodes[at(index)].cases)
            if (target > 0 && target <= lengthOf(script) && script.source->Befehl[at(target - 1)] == "Fall"_op &&
                isOpen(script, target - 1))
                return true;
    const bool unused = std::find(itemUsed_.begin(), itemUsed_.end(), 0) != itemUsed_.end();
    return unused && isUsefulAsked(script, index);
}

bool Questions::isAskedItem(std::int32_t item) const {
    if (!itemUsed_[at(item)]) return true;
    for (const Script& script : program_.scripts)
        for (std::int32_t i = 0; i < lengthOf(script); ++i)
            if (const Node& node = script.nodes[at(i)];
                node.op == Op::testItem && node.a == program_.items[at(item)].name && isOpen(script, i))
                return true;
    return false;
}

bool Questions::isAskedFlag(std::int32_t flag) const {
    for (const Script& script : program_.scripts)
        for (std::int32_t i = 0; i < lengthOf(script); ++i)
            if (const Node& node = script.nodes[at(i)]; asksFlag(node) && node.a == flag && isOpen(script, i))
                return true;
    return false;
}

std::size_t Questions::openLines() const {
    std::set<std::pair<int, int>> lines;
    for (const Script& script : program_.scripts)
        for (std::int32_t i = 0; counts(script) && i < lengthOf(script); ++i)
            if (const Key key = keyOf(script, i); !isMark(key.command) && !known_.at(key).ran)
                lines.insert({key.place.file, key.place.line});
    return lines.size();
}

// --- findings

void Questions::tell(story::Findings& findings, const std::string& proviso) const {
    tellRooms(findings, proviso);
    tellItems(findings, proviso);
    for (const Script& script : program_.scripts) {
        if (!counts(script)) continue;
        const bool roomSeen = script.room == -1 || rooms_[at(script.room)];
        const bool itemHad = script.item == -1 || isHad(at(script.item));
        if (roomSeen && itemHad) tellLines(script, findings, proviso);
    }
}

void Questions::tellRooms(story::Findings& findings, const std::string& proviso) const {
    for (std::size_t i = 0; i < rooms_.size(); ++i)
        if (!rooms_[i] && static_cast<std::int32_t>(i) != loadRoom_)
            findings.warning(program_.rooms[i].source->head, "nie-gespielt",
                             "kein Spiel betritt den Raum " + inMarks(program_.rooms[i].source->file) + proviso);
}

// Of a row of lines that nobody plays the first is told.
void Questions::tellLines(const Script& script, story::Findings& findings, const std::string& proviso) const {
    bool told = false;
    for (std::int32_t i = 0; i < lengthOf(script); ++i) {
        const std::int32_t command = script.source->Befehl[at(i)];
        const Known& here = known(script, i);
        if (script.nodes[at(i)].op == Op::choice) tellAnswers(script, i, findings, proviso);
        if (here.ran) {
            told = false;
            tellCondition(script, i, findings, proviso);
        }
        if (here.ran || isMark(command) || told) continue;
        told = true;
        findings.warning(script.places->commands[at(i)].command, "nie-gespielt",
                         "kein Spiel kommt bis zu dieser Zeile" + proviso);
    }
}

void Questions::tellCondition(const Script& script, std::int32_t index, story::Findings& findings,
                              const std::string& proviso) const {
    if (!isOpen(script, index)) return;
    const Known& here = known(script, index);
    const Node& node = script.nodes[at(index)];
    const story::Place place = script.places->argument(at(index));
    if (asksFlag(node))
        findings.warning(place, "immer-gleich",
                         "der Merker " + toUtf8(program_.flags[at(node.a)]) + " ist hier in jedem Spiel " +
                             (here.held ? "gesetzt" : "nicht gesetzt") + proviso);
    else if (node.op == Op::testItem)
        findings.warning(
            place, "immer-gleich",
            "hier legt in keinem Spiel jemand " + inMarks(program_.itemNames[at(node.a)]) + " ab" + proviso);
}

void Questions::tellAnswers(const Script& script, std::int32_t index, story::Findings& findings,
                            const std::string& proviso) const {
    const story::ChoiceText texts = story::splitChoice(argumentOf(*script.source, at(index)));
    const auto& cases = script.nodes[at(index)].cases;
    const bool ran = known(script, index).ran;
    for (std::size_t option = 0; option < cases.size(); ++option) {
        const std::int32_t before = cases[option] - 1;
        const bool hasCase =
            before > index && before < lengthOf(script) && script.source->Befehl[at(before)] == "Fall"_op;
        if (hasCase ? known(script, before).chosen : ran) continue;
        const story::Place place = script.places->commands[at(hasCase ? before : index)].command;
        const Text text = option < texts.options.size() ? Trim(texts.options[option]) : Text();
        findings.warning(place, "antwort-nie",
                         "die Antwort " + story::shown(text) + " kann in keinem Spiel gewählt werden" + proviso);
    }
}

void Questions::tellItems(story::Findings& findings, const std::string& proviso) const {
    for (std::size_t i = 0; i < program_.items.size(); ++i) {
        if (itemUsed_[i]) continue;
        const std::string name = nameOfItem(program_.items[i]);
        findings.warning(placeOfItem(i), "gegenstand-nutzlos",
                         (isHad(i) ? name + " ist in keinem Spiel zu etwas nütze"
                                   : name + " kann in keinem Spiel jemand bekommen") +
                             proviso);
    }
}

// Where it is described, else where it is taken first, else its script.
story::Place Questions::placeOfItem(std::size_t index) const {
    const Item& item = program_.items[index];
    for (const auto& named : program_.story->items)
        if (equalIgnoringCase(Dateiname(named.picture), item.file)) return named.place;
    for (const Script& script : program_.scripts)
        for (std::int32_t i = 0; i < lengthOf(script); ++i)
            if (const Node& node = script.nodes[at(i)]; node.op == Op::take && at(node.a) == index)
                return script.places->argument(at(i));
    for (const std::int32_t script : item.script)
        if (script != -1) return program_.scripts[at(script)].places->head;
    return {};
}

}  // namespace zentrox::prove
