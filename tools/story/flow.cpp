#include "tools/story/flow.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/language/opcodes.h"
#include "engine/language/words.h"
#include "engine/state/felder.h"
#include "tools/story/words.h"

namespace zentrox::story {

namespace {

// A script so branched that more states than this are possible gets no verdict on its loops.
constexpr std::size_t mostStates = 20000;

Text nameOf(TextView argument) {
    return upper(Getrimmt(argument));
}

class FlowFinder {
public:
    FlowFinder(const ScriptView& view, const Blocks& blocks)
        : script_(view.script),
          blocks_(blocks),
          knowsItem_(view.knowsItem()) {
        for (std::size_t i = 0; i < script_.Befehl.size(); ++i)
            if (script_.Befehl[i] == "Marke"_op) labels_.emplace(nameOf(argumentOf(script_, i)), i);
    }

    Flow find() {
        Flow flow;
        for (std::size_t i = 0; i < script_.Befehl.size(); ++i) flow.next.push_back(behind(i));
        flow.reached.assign(script_.Befehl.size(), false);
        std::vector<std::size_t> todo{0};
        while (!todo.empty()) {
            const std::size_t i = todo.back();
            todo.pop_back();
            if (i >= flow.reached.size() || flow.reached[i]) continue;
            flow.reached[i] = true;
            todo.insert(todo.end(), flow.next[i].begin(), flow.next[i].end());
        }
        return flow;
    }

private:
    using Targets = std::vector<std::size_t>;

    Targets behind(std::size_t i) const {
        const std::size_t end = script_.Befehl.size();
        const Block* const block = blocks_.at(i);
        const TextView argument = argumentOf(script_, i);
        const Opcode* const row = findOpcode(script_.Befehl[i]);
        if (!row) return {i + 1};
        if (row->role == Role::opens && row->block == zentrox::Block::choice) return behindChoice(*block);
        if (row->role == Role::opens) {
            const bool never = row->arg == Arg::itemName && !knowsItem_ && !nameOf(argument).empty();
            return never ? Targets{behindCondition(*block)} : Targets{i + 1, behindCondition(*block)};
        }
        if (row->role == Role::divides) return {block->end + 1};
        if (row->next == Next::label) {
            const auto label = labels_.find(nameOf(argument));
            return {label == labels_.end() ? i + 1 : label->second};
        }
        const bool leaves = row->next == Next::word && !istSystemwort(argument) && !resemblesSystemWord(argument);
        return {row->next == Next::ends || leaves ? end : i + 1};
    }

    // Where it goes on if the condition is false.
    static std::size_t behindCondition(const Block& block) {
        return (block.otherwise == nowhere ? block.end : block.otherwise) + 1;
    }

    std::vector<std::size_t> behindChoice(const Block& block) const {
        const std::int32_t count = optionCount(argumentOf(script_, block.begin));
        std::set<std::size_t> targets;
        std::set<double> covered;
        for (const std::size_t i : block.cases) {
            const double number = Val(argumentOf(script_, i));
            const bool offered = number >= 1 && number <= count && number == Runden(number);
            if (offered && covered.insert(number).second) targets.insert(i + 1);
        }
        if (covered.size() < static_cast<std::size_t>(count)) targets.insert(block.end + 1);
        return {targets.begin(), targets.end()};
    }

    const Skript& script_;
    const Blocks& blocks_;
    bool knowsItem_;
    std::map<Text, std::size_t> labels_;  // the first of each name
};

// Follows all runs between two waits, with what is known of the flags by the tests and commands on the way. Only
// the conditions within a loop count; any other may turn out either way.
class LoopFinder {
public:
    LoopFinder(const Skript& script, const Flow& flow) : script_(script), flow_(flow) {
        std::size_t first = nowhere;
        std::size_t last = 0;
        for (std::size_t i = 0; i < script.Befehl.size(); ++i) {
            if (script.Befehl[i] != "Springe"_op || !flow.reached[i] || flow.next[i][0] > i) continue;
            first = std::min(first, flow.next[i][0]);
            last = i;
        }
        for (std::size_t i = first; i < last; ++i)
            if (isCondition(i)) facts_.emplace(factOf(i), facts_.size());
    }

    std::vector<std::size_t> find() {
        roots_.push_back({0, std::vector<Known>(facts_.size(), Known::unknown)});
        while (!roots_.empty() && colours_.size() < mostStates) {
            State root = std::move(roots_.back());
            roots_.pop_back();
            if (!colours_.contains(root)) walk(root);
        }
        return {loops_.begin(), loops_.end()};
    }

private:
    enum class Known : char { unknown, yes, no };
    enum class Colour : char { onPath, done };
    using State = std::pair<std::size_t, std::vector<Known>>;
    struct Step {
        State state;
        std::vector<State> next;
    };

    bool isCondition(std::size_t i) const { return opens(zentrox::Block::condition, script_.Befehl[i]); }
    // Flags and the dropped item are told apart.
    std::pair<bool, Text> factOf(std::size_t i) const {
        return {script_.Befehl[i] == "WennParameter"_op, nameOf(argumentOf(script_, i))};
    }

    void walk(const State& root) {
        std::vector<Step> path;
        enter(path, root);
        while (!path.empty() && colours_.size() < mostStates) {
            if (path.back().next.empty()) {
                colours_[path.back().state] = Colour::done;
                path.pop_back();
                continue;
            }
            State next = std::move(path.back().next.back());
            path.back().next.pop_back();
            if (next.first >= script_.Befehl.size()) continue;
            const auto seen = colours_.find(next);
            if (seen == colours_.end())
                enter(path, next);
            else if (seen->second == Colour::onPath)
                noteLoop(path, next);
        }
    }

    void enter(std::vector<Step>& path, const State& state) {
        colours_[state] = Colour::onPath;
        const std::size_t i = state.first;
        path.push_back({state, {}});
        if (i >= script_.Befehl.size()) return;
        if (waits(script_, i)) {
            for (const std::size_t target : flow_.next[i])
                roots_.push_back({target, std::vector<Known>(facts_.size(), Known::unknown)});
            return;
        }
        for (const std::size_t target : flow_.next[i]) follow(path.back(), target);
    }

    // Adds the way from an instruction to `target`, if what is known allows it.
    void follow(Step& step, std::size_t target) {
        const std::size_t i = step.state.first;
        std::vector<Known> known = step.state.second;
        const std::int32_t command = script_.Befehl[i];
        const auto fact = isCondition(i) ? facts_.find(factOf(i)) : facts_.end();
        if (fact != facts_.end() && flow_.next[i].front() != flow_.next[i].back()) {
            const Known value = target == i + 1 ? Known::yes : Known::no;
            if (known[fact->second] != Known::unknown && known[fact->second] != value) return;
            learn(known, i, value);
        }
        if (command == "SetzeMerker"_op) set(known, argumentOf(script_, i), Known::yes);
        if (command == "LöscheMerker"_op) set(known, argumentOf(script_, i), Known::no);
        if (command == "BöseÄndern"_op) set(known, "BÖSE"_t, Known::unknown);
        step.next.push_back({target, std::move(known)});
    }

    void learn(std::vector<Known>& known, std::size_t i, Known value) const {
        known[facts_.at(factOf(i))] = value;
        if (value != Known::yes || script_.Befehl[i] != "WennParameter"_op) return;
        for (const auto& [fact, index] : facts_)  // only one item can have been dropped
            if (fact.first && fact != factOf(i)) known[index] = Known::no;
    }

    void set(std::vector<Known>& known, TextView flag, Known value) const {
        const auto fact = facts_.find({false, nameOf(flag)});
        if (fact != facts_.end()) known[fact->second] = value;
    }

    void noteLoop(const std::vector<Step>& path, const State& back) {
        std::size_t jump = nowhere;
        for (auto step = path.rbegin(); step != path.rend(); ++step) {
            const std::size_t i = step->state.first;
            if (script_.Befehl[i] == "Springe"_op && (jump == nowhere || i > jump)) jump = i;
            if (step->state == back) break;
        }
        if (jump != nowhere) loops_.insert(jump);
    }

    const Skript& script_;
    const Flow& flow_;
    std::map<std::pair<bool, Text>, std::size_t> facts_;
    std::vector<State> roots_;
    std::map<State, Colour> colours_;
    std::set<std::size_t> loops_;
};

}  // namespace

Flow findFlow(const ScriptView& view, const Blocks& blocks) {
    return FlowFinder(view, blocks).find();
}

bool waits(const Skript& script, std::size_t index) {
    const Opcode* const row = findOpcode(script.Befehl[index]);
    return row && zentrox::waits(*row, argumentOf(script, index));
}

std::vector<std::size_t> busyLoops(const Skript& script, const Flow& flow) {
    for (std::size_t i = 0; i < script.Befehl.size(); ++i)
        if (script.Befehl[i] == "Springe"_op && flow.reached[i] && flow.next[i][0] <= i)
            return LoopFinder(script, flow).find();
    return {};
}

}  // namespace zentrox::story
