// Tells a way through the story to people: where they are, what they do, what they read.
#include <algorithm>

#include "engine/language/opcodes.h"
#include "tools/prove/walk.h"
#include "tools/story/blocks.h"

namespace zentrox::prove {

namespace {

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

std::int32_t commandAt(const Program& program, std::int32_t script, std::int32_t index) {
    const auto& commands = program.scripts[at(script)].source->Befehl;
    return index >= 0 && at(index) < commands.size() ? commands[at(index)] : -1;
}

std::string withoutColours(TextView text) {
    Text plain;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('#', from), text.size());
        TextView line = text.substr(from, end - from);
        if (line.starts_with('$')) line.remove_prefix(std::min<std::size_t>(2, line.size()));
        (plain += from == 0 ? "" : "#") += line;
        from = end + 1;
    }
    return toUtf8(plain);
}

// The command that the player stands in, if it is this one.
const Frame* standsIn(const Program& program, const Stacks& stacks, const State& state, std::int32_t command,
                      Stack& stack) {
    stacks.load(state.stack(), stack);
    if (stack.frames.empty()) return nullptr;
    const Frame& frame = stack.frames.back();
    return commandAt(program, frame.script, frame.index) == command ? &frame : nullptr;
}

// The chosen answer in its own words.
std::string answer(const Program& program, const Stacks& stacks, const PlayedStep& step) {
    Stack stack;
    const Frame* const frame = standsIn(program, stacks, step.before, "Auswahl"_op, stack);
    if (frame == nullptr) return {};
    const auto choice =
        story::splitChoice(story::argumentOf(*program.scripts[at(frame->script)].source, at(frame->index)));
    const auto option = at(step.action.a) - 1;
    if (option >= choice.options.size()) return {};
    std::string words = withoutColours(choice.options[option]);
    std::replace(words.begin(), words.end(), '#', ' ');
    return "„" + words + "“ antworten";
}

std::string whatIsDone(const Program& program, const Stacks& stacks, const PlayedStep& step) {
    const std::string chosen = step.action.kind == Action::Kind::choose ? answer(program, stacks, step) : "";
    return chosen.empty() ? inWords(program, step.before, step.action) : chosen;
}

}  // namespace

std::vector<ToldStep> tell(const Program& program, const Stacks& stacks, const std::vector<PlayedStep>& steps) {
    std::vector<ToldStep> told;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const PlayedStep& step = steps[i];
        ToldStep next;
        next.place.file = -1;
        const std::int32_t room = i == 0 ? program.start : step.before.room();
        next.room = toUtf8(program.rooms[at(room)].source->file);
        if (i > 0) next.what = whatIsDone(program, stacks, step);
        for (const TraceStep& ran : step.trace) {
            if (next.place.file == -1) next.place = program.placeOf(ran.script, std::max(ran.index, 0));
            if (commandAt(program, ran.script, ran.index) == "Text"_op)
                next.texts.push_back(
                    withoutColours(story::argumentOf(*program.scripts[at(ran.script)].source, at(ran.index))));
        }
        told.push_back(std::move(next));
    }
    return told;
}

}  // namespace zentrox::prove
