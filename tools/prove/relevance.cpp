#include "tools/prove/relevance.h"

#include <algorithm>

namespace zentrox::prove {

namespace {

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

// The instructions that can come next.
void successors(const Script& script, std::int32_t index, std::int32_t assumed, std::vector<std::int32_t>& out) {
    out.clear();
    const auto end = static_cast<std::int32_t>(script.nodes.size()) - 1;
    if (index == end) return;
    const Node& node = script.nodes[at(index)];
    switch (node.op) {
        case Op::testFlag:
            if (node.a != -1 && node.a != assumed) out.push_back(node.other);
            out.push_back(node.next);
            break;
        case Op::testItem: out = {node.next, node.other}; break;
        case Op::choice: out = node.cases; break;
        case Op::room:
        case Op::leave: out = {end}; break;
        default: out = {node.next}; break;
    }
}

// Those that a run with this item can reach from the first one, by index.
std::vector<char> reachedWith(const Script& script, std::int32_t itemName, std::int32_t assumed) {
    std::vector<char> reached(script.nodes.size());
    std::vector<std::int32_t> todo{0};
    std::vector<std::int32_t> next;
    while (!todo.empty()) {
        const std::int32_t i = todo.back();
        todo.pop_back();
        if (reached[at(i)]) continue;
        reached[at(i)] = 1;
        const Node& node = script.nodes[at(i)];
        if (node.op == Op::testItem) {
            todo.push_back(node.a == itemName ? node.next : node.other);
            continue;
        }
        successors(script, i, assumed, next);
        todo.insert(todo.end(), next.begin(), next.end());
    }
    return reached;
}

// What can be reached from some nodes without passing `stop`, that one left out.
std::vector<char> reachedFrom(const Script& script, std::vector<std::int32_t> todo, std::int32_t stop,
                              std::int32_t assumed) {
    std::vector<char> reached(script.nodes.size());
    std::vector<std::int32_t> next;
    while (!todo.empty()) {
        const std::int32_t i = todo.back();
        todo.pop_back();
        if (i == stop || reached[at(i)]) continue;
        reached[at(i)] = 1;
        successors(script, i, assumed, next);
        todo.insert(todo.end(), next.begin(), next.end());
    }
    return reached;
}

// Whether some nodes hold a loop among themselves.
bool holdsLoop(const Script& script, const std::vector<char>& nodes, std::int32_t assumed) {
    enum class Colour : char { fresh, onPath, done };
    std::vector<Colour> colours(nodes.size(), Colour::fresh);
    struct Step {
        std::int32_t node;
        std::vector<std::int32_t> next;
    };
    std::vector<Step> path;
    const auto enter = [&](std::int32_t i) {
        colours[at(i)] = Colour::onPath;
        path.push_back({i, {}});
        successors(script, i, assumed, path.back().next);
    };
    for (std::size_t root = 0; root < nodes.size(); ++root) {
        if (!nodes[root] || colours[root] != Colour::fresh) continue;
        enter(static_cast<std::int32_t>(root));
        while (!path.empty()) {
            if (path.back().next.empty()) {
                colours[at(path.back().node)] = Colour::done;
                path.pop_back();
                continue;
            }
            const std::int32_t next = path.back().next.back();
            path.back().next.pop_back();
            if (!nodes[at(next)] || colours[at(next)] == Colour::done) continue;
            if (colours[at(next)] == Colour::onPath) return true;
            enter(next);
        }
    }
    return false;
}

// For each node the nearest one that every way from it to the end has to pass; -1 where no way leads there.
class Joins {
public:
    Joins(const Script& script, std::int32_t assumed)
        : script_(script),
          assumed_(assumed),
          end_(static_cast<std::int32_t>(script.nodes.size()) - 1) {
        join_.assign(script.nodes.size(), -1);
        findOrder();
        join_[at(end_)] = end_;
        std::vector<std::int32_t> next;
        for (bool changed = true; changed;) {
            changed = false;
            for (const std::int32_t i : order_) {
                if (i == end_) continue;
                std::int32_t common = -1;
                successors(script_, i, assumed_, next);
                for (const std::int32_t n : next)
                    if (join_[at(n)] != -1) common = common == -1 ? n : meet(common, n);
                if (common == join_[at(i)]) continue;
                join_[at(i)] = common;
                changed = true;
            }
        }
    }
    std::int32_t of(std::int32_t i) const { return join_[at(i)]; }

private:
    // From the end backwards, each node behind those that it leads to as far as loops allow.
    void findOrder() {
        std::vector<std::vector<std::int32_t>> before(script_.nodes.size());
        std::vector<std::int32_t> next;
        for (std::int32_t i = 0; i < end_; ++i) {
            successors(script_, i, assumed_, next);
            for (const std::int32_t n : next) before[at(n)].push_back(i);
        }
        number_.assign(script_.nodes.size(), -1);
        std::vector<char> seen(script_.nodes.size());
        std::vector<std::pair<std::int32_t, std::size_t>> path{{end_, 0}};
        seen[at(end_)] = 1;
        while (!path.empty()) {
            auto& [node, done] = path.back();
            if (done == before[at(node)].size()) {
                order_.push_back(node);
                path.pop_back();
                continue;
            }
            const std::int32_t other = before[at(node)][done++];
            if (seen[at(other)]) continue;
            seen[at(other)] = 1;
            path.emplace_back(other, 0);
        }
        std::reverse(order_.begin(), order_.end());
        for (std::size_t i = 0; i < order_.size(); ++i) number_[at(order_[i])] = static_cast<std::int32_t>(i);
    }
    std::int32_t meet(std::int32_t a, std::int32_t b) const {
        while (a != b) {
            while (number_[at(a)] > number_[at(b)]) a = join_[at(a)];
            while (number_[at(b)] > number_[at(a)]) b = join_[at(b)];
        }
        return a;
    }

    const Script& script_;
    std::int32_t assumed_;
    std::int32_t end_;
    std::vector<std::int32_t> order_;
    std::vector<std::int32_t> number_;
    std::vector<std::int32_t> join_;
};

}  // namespace

// --- the shape

Influence::Influence(const Program& program, std::int32_t assumed)
    : program_(program),
      assumed_(assumed),
      reached_(at(program.nodeCount)),
      traps_(at(program.nodeCount)) {
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(program.scripts.size()); ++i) {
        findReached(program.scripts[at(i)]);
        findConditions(i);
        findTraps(i);
    }
}

void Influence::findReached(const Script& script) {
    const auto reached = reachedFrom(script, {0}, -1, assumed_);
    std::copy(reached.begin(), reached.end(), reached_.begin() + script.first);
}

void Influence::findConditions(std::int32_t number) {
    const Script& script = program_.scripts[at(number)];
    const auto asks = [&](std::int32_t i) {
        const Node& node = script.nodes[at(i)];
        return node.op == Op::testFlag && node.a != -1 && node.a != assumed_ && reached_[at(script.first + i)];
    };
    const auto end = static_cast<std::int32_t>(script.nodes.size()) - 1;
    std::int32_t first = 0;
    while (first < end && !asks(first)) ++first;
    if (first == end) return;
    const Joins joins(script, assumed_);
    for (std::int32_t i = first; i < end; ++i) {
        if (!asks(i)) continue;
        const Node& node = script.nodes[at(i)];
        const auto inside = reachedFrom(script, {node.next, node.other}, joins.of(i), assumed_);
        Condition condition{number, i, {}, holdsLoop(script, inside, assumed_)};
        for (std::int32_t n = 0; n < static_cast<std::int32_t>(inside.size()); ++n)
            if (inside[at(n)]) condition.region.push_back(n);
        conditions_.push_back(std::move(condition));
    }
}

void Influence::findTraps(std::int32_t number) {
    const Script& script = program_.scripts[at(number)];
    if (script.nodes.size() < 2) return;
    const Joins joins(script, assumed_);
    for (std::int32_t i = 0; i + 1 < static_cast<std::int32_t>(script.nodes.size()); ++i)
        if (joins.of(i) == -1 && reached_[at(script.first + i)]) traps_[at(script.first + i)] = 1;
}

// --- the cone

class Cone {
public:
    Cone(const Program& program, const Influence& influence, const Asked& asked)
        : program_(program),
          influence_(influence) {
        cone_.flags.resize(program.flags.size());
        cone_.items.resize(program.items.size());
        cone_.nodes = influence.traps_;
        for (const Room& room : program.rooms) cone_.objects.emplace_back(room.objects.size());
        for (const Script& script : program.scripts)
            cone_.actions.emplace_back(takesItem(script) ? program.itemNames.size() : 1);
        for (std::size_t s = 0; s < program.scripts.size(); ++s) {
            const Script& script = program.scripts[s];
            for (std::int32_t i = 0; i + 1 < static_cast<std::int32_t>(script.nodes.size()); ++i) {
                const Op op = script.nodes[at(i)].op;
                const bool always = op == Op::room || op == Op::leave || op == Op::countDown || op == Op::wait;
                if (!runs(script, i)) continue;
                if (always || asked.runs(static_cast<std::int32_t>(s), i)) mark(script, i);
            }
        }
    }

    Relevance find(const Asked& asked) {
        for (std::size_t i = 0; i < program_.items.size(); ++i)
            if (program_.bagCanFill || (asked.carried && asked.carried(static_cast<std::int32_t>(i)))) addItem(i);
        for (std::size_t i = 0; i < program_.flags.size(); ++i)
            if (asked.set && asked.set(static_cast<std::int32_t>(i))) cone_.flags[i] = 1;
        for (changed_ = true; changed_;) {
            changed_ = false;
            addDecisions();
            addFlags();
            addThings();
            addEffects();
        }
        findIdleFlags(asked);
        return std::move(cone_);
    }

private:
    bool runs(const Script& script, std::int32_t index) const {
        return influence_.reached_[at(script.first + index)] != 0;
    }
    static bool takesItem(const Script& script) { return script.role == ScriptRole::drop || script.item != -1; }
    void mark(const Script& script, std::int32_t index) {
        char& node = cone_.nodes[at(script.first + index)];
        changed_ = changed_ || !node;
        node = 1;
    }
    void addItem(std::size_t item) {
        changed_ = changed_ || !cone_.items[item];
        cone_.items[item] = 1;
    }

    // Where a run matters, each choice and each game in it counts as a step of the way.
    void addDecisions() {
        for (const Script& script : program_.scripts) {
            const auto first = cone_.nodes.begin() + script.first;
            const auto end = first + static_cast<std::ptrdiff_t>(script.nodes.size());
            if (script.role != ScriptRole::start && std::find(first, end, 1) == end) continue;
            for (std::int32_t i = 0; i + 1 < static_cast<std::int32_t>(script.nodes.size()); ++i)
                if (const Op op = script.nodes[at(i)].op; runs(script, i) && (op == Op::choice || op == Op::game))
                    mark(script, i);
        }
    }

    bool decides(const Influence::Condition& condition) const {
        const std::int32_t first = program_.scripts[at(condition.script)].first;
        return condition.goesRound || std::any_of(condition.region.begin(), condition.region.end(),
                                                  [&](std::int32_t n) { return cone_.nodes[at(first + n)] != 0; });
    }
    void addFlags() {
        for (const Influence::Condition& condition : influence_.conditions_) {
            const Script& script = program_.scripts[at(condition.script)];
            char& flag = cone_.flags[at(script.nodes[at(condition.index)].a)];
            if (flag || !decides(condition)) continue;
            flag = 1;
            changed_ = true;
        }
        cone_.evil = cone_.flags[at(program_.evilFlag)] != 0;
    }

    bool runMatters(std::int32_t number, std::int32_t name) {
        const Script& script = program_.scripts[at(number)];
        char& known = cone_.actions[at(number)][takesItem(script) ? at(name) : 0];
        if (known) return true;
        const auto first = cone_.nodes.begin() + script.first;
        if (std::find(first, first + static_cast<std::ptrdiff_t>(script.nodes.size()), 1) ==
            first + static_cast<std::ptrdiff_t>(script.nodes.size()))
            return false;
        const auto reached = reachedWith(script, name, influence_.assumed_);
        for (std::size_t i = 0; i < reached.size(); ++i)
            if (reached[i] && cone_.nodes[at(script.first) + i]) {
                known = 1;
                changed_ = true;
                return true;
            }
        return false;
    }

    // Objects and items that something that matters can be done with.
    void addThings() {
        for (std::size_t r = 0; r < program_.rooms.size(); ++r)
            for (std::size_t o = 0; o < program_.rooms[r].objects.size(); ++o) addObject(r, o);
        for (std::size_t i = 0; i < program_.items.size(); ++i) {
            const Item& item = program_.items[i];
            for (const std::size_t which : {0U, 1U})
                if (item.script[which] != -1 && runMatters(item.script[which], item.name)) addItem(i);
            if (item.script[2] == -1) continue;
            for (std::size_t other = 0; other < program_.items.size(); ++other)
                if (runMatters(item.script[2], program_.items[other].name)) {
                    addItem(i);
                    addItem(other);
                }
        }
    }
    void addObject(std::size_t r, std::size_t o) {
        const Object& object = program_.rooms[r].objects[o];
        if (!object.reached) return;
        bool matters = false;
        for (const std::size_t which : {0U, 1U})
            matters = (object.script[which] != -1 && runMatters(object.script[which], 0)) || matters;
        for (std::size_t i = 0; object.script[2] != -1 && i < program_.items.size(); ++i)
            if (runMatters(object.script[2], program_.items[i].name)) {
                addItem(i);
                matters = true;
            }
        if (!matters || cone_.objects[r][o]) return;
        cone_.objects[r][o] = 1;
        changed_ = true;
    }

    void addEffects() {
        for (const Script& script : program_.scripts)
            for (std::int32_t i = 0; i + 1 < static_cast<std::int32_t>(script.nodes.size()); ++i)
                if (!cone_.nodes[at(script.first + i)] && runs(script, i) && changes(script, script.nodes[at(i)]))
                    mark(script, i);
    }
    bool changes(const Script& script, const Node& node) const {
        switch (node.op) {
            case Op::set:
            case Op::clear: return cone_.flags[at(node.a)] != 0;
            case Op::game: return node.a != -1 && cone_.flags[at(node.a)] != 0;
            case Op::take:
            case Op::give: return cone_.items[at(node.a)] != 0;
            case Op::evil: return cone_.evil;
            case Op::object: return switchesWhatMatters(script, node);
            default: return false;
        }
    }
    // A script of an item, or one that waits while a tick changes the room, can run in any room.
    bool switchesWhatMatters(const Script& script, const Node& node) const {
        for (const auto& [room, bits] : program_.objectBits[at(node.a)]) {
            if (script.room != -1 && script.room != room && !program_.ticksInWaits) continue;
            const auto& objects = program_.rooms[at(room)].objects;
            for (std::size_t o = 0; o < objects.size(); ++o)
                if (cone_.objects[at(room)][o] && std::find(bits.begin(), bits.end(), objects[o].bit) != bits.end())
                    return true;
        }
        return false;
    }

    // A flag counts while no script runs only if some run reads it before it writes it.
    void findIdleFlags(const Asked& asked) {
        cone_.idleFlags.resize(program_.flags.size());
        std::map<std::int32_t, std::set<std::int32_t>> readers;  // by script: the conditions that decide
        for (const Influence::Condition& condition : influence_.conditions_) {
            const std::int32_t flag = program_.scripts[at(condition.script)].nodes[at(condition.index)].a;
            if (decides(condition) || (asked.set && asked.set(flag)))
                readers[condition.script].insert(condition.index);
        }
        for (const auto& [number, conditions] : readers) findFirstReads(program_.scripts[at(number)], conditions);
    }
    void findFirstReads(const Script& script, const std::set<std::int32_t>& conditions) {
        std::set<std::int32_t> flags;
        for (const std::int32_t i : conditions) flags.insert(script.nodes[at(i)].a);
        for (const std::int32_t flag : flags)
            if (!cone_.idleFlags[at(flag)] && isReadFirst(script, flag, conditions)) cone_.idleFlags[at(flag)] = 1;
    }
    bool isReadFirst(const Script& script, std::int32_t flag, const std::set<std::int32_t>& conditions) const {
        std::vector<char> seen(script.nodes.size());
        std::vector<std::int32_t> todo{0};
        std::vector<std::int32_t> next;
        while (!todo.empty()) {
            const std::int32_t i = todo.back();
            todo.pop_back();
            if (seen[at(i)]) continue;
            seen[at(i)] = 1;
            const Node& node = script.nodes[at(i)];
            if (node.op == Op::testFlag && node.a == flag && conditions.contains(i)) return true;
            const bool writes = node.op == Op::set || node.op == Op::clear || node.op == Op::game;
            if (writes && node.a == flag) continue;
            successors(script, i, influence_.assumed_, next);
            todo.insert(todo.end(), next.begin(), next.end());
        }
        return false;
    }

    const Program& program_;
    const Influence& influence_;
    Relevance cone_;
    bool changed_ = false;
};

Relevance Influence::of(const Asked& asked) const {
    return Cone(program_, *this, asked).find(asked);
}

}  // namespace zentrox::prove
