#include "tools/prove/walk.h"

#include <algorithm>

#include "engine/language/games.h"
#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"

namespace zentrox::prove {

namespace {

using story::argumentOf;

constexpr const char* patience = " 1200000";  // milliseconds, for films and the credits
constexpr std::size_t longestQuote = 40;

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

std::string inQuotes(const std::string& word) {
    return '"' + word + '"';
}

// A line of a shown text by which it can be told, without its colour; empty if it has none.
std::string lineOf(TextView text) {
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find_first_of("#\r\n", from), text.size());
        TextView line = text.substr(from, end - from);
        if (line.starts_with('$')) line.remove_prefix(std::min<std::size_t>(2, line.size()));
        line = Getrimmt(line);
        if (!line.empty()) return toUtf8(Getrimmt(line.substr(0, longestQuote)));
        from = end + 1;
    }
    return {};
}

class WalkWriter {
public:
    WalkWriter(const Program& program, Stacks& stacks, const std::string& title)
        : program_(program),
          stacks_(stacks),
          out_("# " + title + "\n") {}

    std::string write(const std::vector<PlayedStep>& steps) {
        for (std::size_t i = 0; i < steps.size(); ++i) {
            if (i > 0) act(steps[i]);
            follow(steps[i]);
        }
        return std::move(out_);
    }

private:
    void line(const std::string& text) { out_ += text + "\n"; }

    // --- what the player does

    void act(const PlayedStep& step) {
        using Kind = Action::Kind;
        const Action action = step.action;
        const Room& room = program_.rooms[at(step.before.room())];
        const auto item = [&](std::int32_t index) {
            return inQuotes(toUtf8(story::itemName(program_.items[at(index)].file)));
        };
        switch (action.kind) {
            case Kind::use: return click(room, step.before, action.a, "use ", "left");
            case Kind::look: return click(room, step.before, action.a, "look ", "right");
            case Kind::give: return line("give " + item(action.a) + " " + inQuotes(nameOf(room, action.b)));
            case Kind::useItem: return line("use item " + item(action.a));
            case Kind::lookItem: return line("look item " + item(action.a));
            case Kind::combine: return line("combine " + item(action.a) + " " + item(action.b));
            case Kind::choose: return line("choose " + std::to_string(action.a));
            case Kind::win: return line("win");
            case Kind::lose: return line("lose");
            case Kind::tick: return line("wait " + std::to_string(step.period + 1) + "  # the count-down");
            case Kind::goOn: return goOn(step);
        }
    }

    static std::string nameOf(const Room& room, std::int32_t object) {
        return toUtf8(Trim(room.source->room.Objekte[at(object)].Name));
    }

    // By its name, or where that means another object, at a place of its own.
    void click(const Room& room, const State& state, std::int32_t index, const std::string& word,
               const std::string& button) {
        const std::string name = nameOf(room, index);
        for (std::int32_t i = 0; i < static_cast<std::int32_t>(room.objects.size()); ++i) {
            const Object& other = room.objects[at(i)];
            const bool active = other.bit == -1 ? other.active : state.bit(other.bit);
            if (!other.reached || !active || !equalIgnoringCase(fromUtf8(nameOf(room, i)), fromUtf8(name)))
                continue;
            if (i == index && !name.empty()) return line(word + inQuotes(name));
            break;
        }
        const Point place = cellOf(room, index);
        line("click " + button + " " + std::to_string(place.x) + " " + std::to_string(place.y) + "  # " + name);
    }
    // In pixels of the room window as it opens, where the picture begins one row below the edge.
    static Point cellOf(const Room& room, std::int32_t index) {
        const auto& objects = room.source->room.Objekte;
        for (int column = 0; column < Maskenspalten; ++column)
            for (int row = 0; row < Maskenzeilen; ++row) {
                const auto first = std::find_if(objects.begin(), objects.end(),
                                                [&](const RaumObjekt& o) { return o.Maske.at(column, row); });
                if (first - objects.begin() == index)
                    return {column * Maskenzelle + Maskenzelle / 2, row * Maskenzelle + Maskenzelle / 2 + 1};
            }
        return {};
    }

    void goOn(const PlayedStep& step) {
        stacks_.load(step.before.stack(), stack_);
        if (commandAt(stack_.frames.back().script, stack_.frames.back().index) == "Text"_op) line("key enter");
    }

    // --- what comes of it

    void follow(const PlayedStep& step) {
        texts_.clear();
        slow_ = false;
        stacks_.load(step.after.stack(), stack_);
        const bool standsInText = !stack_.frames.empty() && stack_.frames.back().waits == Op::wait;
        for (std::size_t i = 0; i < step.trace.size(); ++i)
            pass(step.trace[i], standsInText && i + 1 == step.trace.size());
        read();
        if (step.outcome.kind == Outcome::Kind::left) return line(std::string("until window Menu") + patience);
        if (stack_.frames.empty()) {
            if (step.after.stack() == idle) line(std::string("until idle") + (slow_ ? patience : ""));
        } else if (stack_.frames.back().waits == Op::choice) {
            line(std::string("until choice") + (slow_ ? patience : ""));
        } else if (stack_.frames.back().waits == Op::game) {
            line("until window " + windowOf(stack_.frames.back()) + (slow_ ? patience : ""));
        }
    }
    std::int32_t commandAt(std::int32_t script, std::int32_t index) const {
        const auto& commands = program_.scripts[at(script)].source->Befehl;
        return at(index) < commands.size() ? commands[at(index)] : -1;
    }
    // One instruction that has run. The text that the player stands in is not read away.
    void pass(const TraceStep& step, bool isLast) {
        const Script& script = program_.scripts[at(step.script)];
        const std::int32_t command = commandAt(step.script, step.index);
        const TextView argument = argumentOf(*script.source, at(std::max(step.index, 0)));
        if (command == "Film"_op || (command == "System"_op && argument == "Abspann")) {
            readOneByOne();
            slow_ = true;
        }
        if (command == "Raumwechsel"_op && at(step.index) < script.nodes.size() &&
            script.nodes[at(step.index)].a == -1 && missing_.insert({step.script, step.index}).second) {
            readOneByOne();
            line("until window MsgBox");
            line("key enter");
        }
        if (command != "Text"_op) return;
        const std::string text = lineOf(argument);
        if (isLast) {
            read();
            if (!text.empty()) line("until text " + inQuotes(text) + (slow_ ? patience : ""));
            if (text.empty()) line("wait 400");
            return;
        }
        if (slow_ && texts_.empty() && !text.empty()) {
            line("until text " + inQuotes(text) + patience);
            slow_ = false;
        }
        texts_.push_back(text);
    }
    // Texts before something that takes longer than a walk waits while it reads.
    void readOneByOne() {
        for (std::size_t i = 0; i < texts_.size(); ++i) {
            if (i > 0 && !texts_[i - 1].empty()) line("until not text " + inQuotes(texts_[i - 1]));
            line(texts_[i].empty() ? "wait 400" : "until text " + inQuotes(texts_[i]) + patience);
            line("key enter");
        }
        texts_.clear();
    }
    void read() {
        if (texts_.empty()) return;
        std::string command = "read";
        for (const std::string& text : texts_)
            if (!text.empty()) command += " " + inQuotes(text);
        line(command);
        texts_.clear();
    }
    std::string windowOf(const Frame& frame) const {
        const Skript& source = *program_.scripts[at(frame.script)].source;
        const Text name = upper(Trim(Feld(argumentOf(source, at(frame.index)), ",", 1)));
        const SpielArt* const game = findSpiel(name);
        return game == nullptr ? "Form1" : toUtf8(game->fenster);
    }

    const Program& program_;
    Stacks& stacks_;
    std::string out_;
    Stack stack_;
    std::vector<std::string> texts_;
    std::set<std::pair<std::int32_t, std::int32_t>> missing_;  // rooms that a box has told of; it does so once
    bool slow_ = false;                                        // a film or the credits run
};

}  // namespace

std::vector<PlayedStep> play(const Program& program, Stacks& stacks, const std::vector<Action>& way, Seen* seen) {
    Machine machine(program, stacks, false);
    std::vector<PlayedStep> steps(1);
    machine.trace = &steps.back().trace;
    steps.back().outcome = machine.begin(steps.back().after);
    for (const Action action : way) {
        PlayedStep step;
        step.action = action;
        step.before = step.after = steps.back().after;
        step.period = machine.period;
        machine.trace = &step.trace;
        step.outcome = machine.step(step.after, action);
        steps.push_back(std::move(step));
    }
    if (seen != nullptr) seen->add(machine.seen);
    return steps;
}

std::string walkText(const Program& program, Stacks& stacks, const std::vector<PlayedStep>& steps,
                     const std::string& title) {
    return WalkWriter(program, stacks, title).write(steps);
}

std::string inWords(const Program& program, const State& before, Action action) {
    using Kind = Action::Kind;
    const auto item = [&](std::int32_t index) {
        return "„" + toUtf8(story::itemName(program.items[at(index)].file)) + "“";
    };
    const auto object = [&](std::int32_t index) {
        const auto& objects = program.rooms[at(before.room())].source->room.Objekte;
        return "„" + toUtf8(Trim(objects[at(index)].Name)) + "“";
    };
    switch (action.kind) {
        case Kind::use: return object(action.a) + " benutzen";
        case Kind::look: return object(action.a) + " ansehen";
        case Kind::give: return item(action.a) + " auf " + object(action.b);
        case Kind::useItem: return item(action.a) + " benutzen";
        case Kind::lookItem: return item(action.a) + " ansehen";
        case Kind::combine: return item(action.a) + " auf " + item(action.b);
        case Kind::choose: return "Antwort " + std::to_string(action.a);
        case Kind::win: return "Spiel gewinnen";
        case Kind::lose: return "Spiel verlieren";
        case Kind::tick: return "Countdown";
        case Kind::goOn: return "weiter";
    }
    return {};
}

}  // namespace zentrox::prove
