#include "author/trace.h"

#include <algorithm>

#include "engine/language/opcodes.h"

namespace zentrox::author {

namespace {

constexpr std::size_t kept = 100;
constexpr std::size_t longest = 200;  // characters

Text onOneLine(TextView text) {
    Text line(text.substr(0, longest));
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return line;
}

}  // namespace

std::size_t Trace::Beginnt(const Skript& script, TextView room, int object) {
    const auto count = static_cast<std::size_t>(std::max(script.Letzter + 1, 0));
    Run run;
    run.commands.assign(script.Befehl.begin(),
                        script.Befehl.begin() + static_cast<std::ptrdiff_t>(std::min(count, script.Befehl.size())));
    run.arguments = script.Argument;
    run.name = Text(room);
    const auto& objects = z_.AktuellerRaum.Objekte;
    if (object >= 0 && static_cast<std::size_t>(object) < objects.size())
        run.name += ", " + objects[static_cast<std::size_t>(object)].Name;
    findPlaces(run, room, object);
    runs_.push_back(std::move(run));
    return runs_.size() - 1;
}

// By what it holds: the game copies scripts before it runs them, and an item's comes from a file of its own.
// Objects may have the same script, so it counts which one it is.
void Trace::findPlaces(Run& run, TextView room, int object) const {
    using Role = story::ScriptView::Role;
    int action = -1;  // the object whose action the view is
    for (const story::ScriptView& view : compiler_.scripts()) {
        if (view.role == Role::start) action = -1;
        if (view.role == Role::action && view.which == 0) ++action;
        const bool ofObject = view.role == Role::action;
        const bool here = view.room == nullptr || (equalIgnoringCase(view.room->file, room) &&
                                                   (!ofObject || object < 0 || action == object));
        const bool same = std::equal(run.commands.begin(), run.commands.end(), view.script.Befehl.begin(),
                                     view.script.Befehl.begin() + std::max(view.script.Letzter + 1, 0)) &&
                          run.arguments == view.script.Argument;
        if (!here || !same) continue;
        for (const story::CommandPlace& place : view.places.commands)
            run.places.push_back({{}, compiler_.fileOf(place.command), place.command.line});
        return;
    }
}

void Trace::Anweisung(std::size_t number, std::int32_t index) {
    const Run& run = runs_[number];
    const auto at = static_cast<std::size_t>(index);
    Entry entry = at < run.places.size() ? run.places[at] : Entry{};
    const Opcode* const opcode = at < run.commands.size() ? findOpcode(run.commands[at]) : nullptr;
    if (opcode == nullptr) return;
    entry.text = Text(opcode->name);
    if (at < run.arguments.size() && !run.arguments[at].empty()) entry.text += " " + onOneLine(run.arguments[at]);
    entries_.push_back(std::move(entry));
    if (entries_.size() > kept) entries_.pop_front();
    ++count_;
    if (onCommand) onCommand();
}

}  // namespace zentrox::author
