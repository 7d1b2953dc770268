#include "tools/prove/deadends.h"

#include <algorithm>
#include <unordered_map>

#include "tools/story/story.h"

namespace zentrox::prove {

namespace {

// So many states are looked at to find out whether a game that went a little otherwise could be won.
constexpr std::size_t mostLooks = 20000;

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

bool changes(Op op) {
    switch (op) {
        case Op::set:
        case Op::clear:
        case Op::take:
        case Op::give:
        case Op::object:
        case Op::evil:
        case Op::countDown:
        case Op::room: return true;
        default: return false;
    }
}

class LossFinder {
public:
    LossFinder(const Program& program, const std::vector<char>& matters, Search& search)
        : program_(program),
          matters_(matters),
          search_(search),
          store_(search.store()),
          machine_(search.machine()) {
        machine_.trace = &trace_;
    }

    std::vector<LosingStep> find() {
        std::vector<std::pair<StateId, StateId>> losing;
        search_.forEachEdge([&](StateId from, StateId to) {
            if ((store_.mark(from) & mark::alive) != 0 && (store_.mark(to) & mark::alive) == 0)
                losing.emplace_back(from, to);
        });
        // The edges of one state follow each other.
        for (std::size_t i = 0; i < losing.size();) {
            std::vector<StateId> lost;
            const StateId from = losing[i].first;
            for (; i < losing.size() && losing[i].first == from; ++i) lost.push_back(losing[i].second);
            look(from, lost);
        }
        std::vector<LosingStep> steps;
        for (auto& [place, step] : byPlace_) steps.push_back(std::move(step));
        std::stable_sort(steps.begin(), steps.end(),
                         [](const LosingStep& a, const LosingStep& b) { return a.way.size() < b.way.size(); });
        return steps;
    }

private:
    void look(StateId id, const std::vector<StateId>& lost) {
        State from;
        search_.load(id, from);
        std::vector<Action> actions;
        machine_.actions(from, actions);
        for (const Action action : actions) {
            trace_.clear();
            State to = from;
            const Outcome outcome = machine_.step(to, action);
            if (outcome.kind != Outcome::Kind::on || outcome.ended) continue;
            const StateId target = store_.find(to.words.data());
            if (std::find(lost.begin(), lost.end(), target) != lost.end()) note(id, from, to, action);
        }
    }

    // Of runs that do the same one is looked at closely.
    void note(StateId id, const State& from, const State& to, Action action) {
        auto effects = effectsOf(from, action);
        if (!known_.insert(effects).second) return;
        const std::pair<std::int32_t, std::int32_t> culprit = culpritOf(from, to, effects);
        const story::Place place = program_.placeOf(culprit.first, culprit.second);
        auto way = search_.wayTo(id);
        way.push_back(action);
        const auto entry = byPlace_.find(place);
        if (entry != byPlace_.end() && entry->second.way.size() <= way.size()) return;
        byPlace_[place] = {culprit.first, culprit.second, std::move(way), missing(to)};
    }

    using Effects = std::vector<std::pair<std::int32_t, std::int32_t>>;
    Effects effectsOf(const State& from, Action action) {
        Effects effects;
        if (action.kind == Action::Kind::win || action.kind == Action::Kind::lose) {
            search_.stacks().load(from.stack(), stack_);
            effects.emplace_back(stack_.frames.back().script, stack_.frames.back().index);
        }
        for (const TraceStep& step : trace_) {
            const Script& script = program_.scripts[at(step.script)];
            if (at(step.index) + 1 < script.nodes.size() && changes(script.nodes[at(step.index)].op) &&
                matters_[at(script.first + step.index)])
                effects.emplace_back(step.script, step.index);
        }
        if (!effects.empty()) return effects;
        for (const TraceStep& step : trace_)
            if (at(step.index) + 1 < program_.scripts[at(step.script)].nodes.size())
                return {{step.script, step.index}};
        search_.stacks().load(from.stack(), stack_);
        if (!stack_.frames.empty()) return {{stack_.frames.back().script, stack_.frames.back().index}};
        return {{program_.rooms[at(from.room())].start, 0}};
    }

    // The one without which the game would not have been lost; if none of them alone did it, the last room change
    // or else the first.
    std::pair<std::int32_t, std::int32_t> culpritOf(const State& from, const State& to, const Effects& effects) {
        if (effects.size() == 1) return effects.front();
        for (const bool gives : {true, false})
            for (const auto& effect : effects) {
                const Node& node = program_.scripts[at(effect.first)].nodes[at(effect.second)];
                if ((node.op == Op::give) == gives && canBeWon(without(from, to, node))) return effect;
            }
        for (auto effect = effects.rbegin(); effect != effects.rend(); ++effect)
            if (program_.scripts[at(effect->first)].nodes[at(effect->second)].op == Op::room) return *effect;
        return effects.front();
    }
    State without(const State& from, const State& to, const Node& node) const {
        State state = to;
        const auto copyBit = [&](std::int32_t bit) {
            if (bit != -1) state.setBit(bit, from.bit(bit));
        };
        switch (node.op) {
            case Op::set:
            case Op::clear:
            case Op::game:
                if (node.a != -1) copyBit(program_.flagBit[at(node.a)]);
                break;
            case Op::take:
            case Op::give: {
                const Item& item = program_.items[at(node.a)];
                state.setCount(item, from.count(item));
                break;
            }
            case Op::evil: state.setEvil(from.evil()); break;
            case Op::countDown: copyBit(program_.layout.countDown); break;
            case Op::object:
            case Op::room:
                for (int bit = program_.layout.firstObject; bit < program_.layout.bits; ++bit) copyBit(bit);
                if (node.op == Op::room) {
                    state.setRoom(from.room());
                    state.setStack(idle);
                }
                break;
            default: break;
        }
        return state;
    }
    bool isAlive(const State& state) const {
        const StateId id = store_.find(state.words.data());
        return id != nobody && (store_.mark(id) & (mark::alive | mark::after)) == mark::alive;
    }

    // Plays on from a state that no play may ever come to.
    bool canBeWon(const State& start) {
        const auto words = static_cast<std::size_t>(store_.wordCount());
        std::set<std::vector<std::uint64_t>> seen;
        std::vector<State> todo{start};
        std::vector<Action> actions;
        for (std::size_t i = 0; i < todo.size() && i < mostLooks; ++i) {
            const State from = todo[i];
            if (store_.find(from.words.data()) != nobody) {
                if (isAlive(from)) return true;
                continue;
            }
            machine_.actions(from, actions);
            for (const Action action : actions) {
                State to = from;
                const Outcome outcome = machine_.step(to, action);
                if (outcome.ended) return true;
                if (outcome.kind == Outcome::Kind::on &&
                    seen.emplace(to.words.begin(), to.words.begin() + static_cast<std::ptrdiff_t>(words)).second)
                    todo.push_back(to);
            }
        }
        return false;
    }

    std::vector<std::string> missing(const State& to) const {
        std::vector<std::string> all;
        for (const Item& item : program_.items) {
            if (item.bits == 0 || to.count(item) > 0) continue;
            State with = to;
            with.setCount(item, 1);
            if (isAlive(with)) all.push_back("„" + toUtf8(story::itemName(item.file)) + "“");
        }
        for (std::size_t i = 0; i < program_.flags.size(); ++i) {
            const std::int32_t bit = program_.flagBit[i];
            if (bit == -1) continue;
            State with = to;
            with.setBit(bit, !to.bit(bit));
            if (!isAlive(with)) continue;
            all.push_back((to.bit(bit) ? "ein gelöschter Merker " : "der Merker ") + toUtf8(program_.flags[i]));
        }
        return all;
    }

    const Program& program_;
    const std::vector<char>& matters_;
    Search& search_;
    Store& store_;
    Machine machine_;
    std::vector<TraceStep> trace_;
    Stack stack_;
    std::set<Effects> known_;
    std::map<story::Place, LosingStep> byPlace_;
};

}  // namespace

std::vector<LosingStep> findLosingSteps(const Program& program, const std::vector<char>& matters, Search& search) {
    return LossFinder(program, matters, search).find();
}

}  // namespace zentrox::prove
