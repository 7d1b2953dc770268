#include "tools/prove/machine.h"

#include <algorithm>
#include <bit>

#include "engine/language/opcodes.h"

namespace zentrox::prove {

namespace {

constexpr std::int64_t suspiciousWork = 20000;  // nodes without a decision, from which on loops are looked for
constexpr std::int64_t mostWork = 2000000;

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

}  // namespace

int State::count(const Item& item) const {
    int count = 0;
    for (int i = 0; i < item.bits; ++i) count |= bit(item.bit + i) ? 1 << i : 0;
    return count;
}

void State::setCount(const Item& item, int count) {
    for (int i = 0; i < item.bits; ++i) setBit(item.bit + i, (count >> i & 1) != 0);
}

void Seen::add(const Seen& other) {
    const auto join = [](std::vector<std::uint8_t>& a, const std::vector<std::uint8_t>& b) {
        for (std::size_t i = 0; i < a.size(); ++i) a[i] = static_cast<std::uint8_t>(a[i] | b[i]);
    };
    join(nodes, other.nodes);
    join(itemUsed, other.itemUsed);
    join(rooms, other.rooms);
    join(doubled, other.doubled);
    bagFull = bagFull || other.bagFull;
    tooDeep = tooDeep || other.tooDeep;
    evilCut = evilCut || other.evilCut;
}

// --- stacks

void Stacks::load(std::uint32_t number, Stack& stack) const {
    stack.frames.clear();
    stack.running = number != idle;
    stack.timer = number == idle;
    stack.answer = 0;
    if (number == idle || number == hangs) return;
    const auto names = static_cast<std::uint32_t>(program_.itemNames.size());
    const std::uint32_t known = static_cast<std::uint32_t>(program_.decisions.size()) * names;
    if (number <= known) {
        const auto [script, index] = program_.decisions[(number - 1) / names];
        const Node& node = program_.scripts[at(script)].nodes[at(index)];
        stack.frames.push_back({script, index, static_cast<std::int32_t>((number - 1) % names), node.op, node.a});
        return;
    }
    const std::lock_guard lock(mutex_);
    stack = *kept_[number - known - 1];
}

std::uint32_t Stacks::numberOf(const Stack& stack, bool tickCanCome) {
    if (stack.frames.empty()) return idle;
    const auto names = static_cast<std::uint32_t>(program_.itemNames.size());
    const Frame& top = stack.frames.back();
    const Script& script = program_.scripts[at(top.script)];
    const bool known = at(top.index) < script.nodes.size() && script.nodes[at(top.index)].op == top.waits;
    if (stack.frames.size() == 1 && stack.running && !tickCanCome && known && top.waits != Op::wait) {
        const std::int32_t decision = program_.decisionOf[at(script.first + top.index)];
        return static_cast<std::uint32_t>(decision) * names + static_cast<std::uint32_t>(top.item) + 1;
    }
    const std::lock_guard lock(mutex_);
    const std::uint32_t first = static_cast<std::uint32_t>(program_.decisions.size()) * names + 1;
    const auto [entry, isNew] = numbers_.emplace(stack, first + static_cast<std::uint32_t>(kept_.size()));
    if (isNew) kept_.push_back(&entry->first);
    return entry->second;
}

// --- what a player can do

Machine::Machine(const Program& program, Stacks& stacks, bool evilCounts)
    : seen(program),
      program_(program),
      stacks_(stacks),
      evilCounts_(evilCounts) {}

void Machine::actions(const State& state, std::vector<Action>& out) {
    out.clear();
    if (state.stack() == hangs) return;
    stacks_.load(state.stack(), stack_);
    const bool ticks = stack_.timer && state.bit(program_.layout.countDown);
    if (stack_.frames.empty()) {
        addClicks(state, out);
    } else {
        const Frame& top = stack_.frames.back();
        using Kind = Action::Kind;
        if (top.waits == Op::choice && stack_.running)
            for (std::int32_t option = 1; option <= top.a; ++option) out.push_back({Kind::choose, option, 0});
        if (top.waits == Op::game) {
            out.push_back({Kind::win, 0, 0});
            out.push_back({Kind::lose, 0, 0});
        }
        if (top.waits == Op::wait) out.push_back({Kind::goOn, 0, 0});
        if (!stack_.running && top.waits != Op::game) addClicks(state, out);
    }
    if (ticks) out.push_back({Action::Kind::tick, 0, 0});
}

void Machine::addAction(Action action, std::int32_t script, std::int32_t item, std::vector<Action>& out) {
    if (script == -1) return;
    if (actionMatters != nullptr && !matters(script, item)) return;
    out.push_back(action);
}

void Machine::addClicks(const State& state, std::vector<Action>& out) {
    using Kind = Action::Kind;
    const Room& room = program_.rooms[at(state.room())];
    const auto objects = static_cast<std::int32_t>(room.objects.size());
    const auto items = static_cast<std::int32_t>(program_.items.size());
    const auto active = [&](const Object& o) { return o.reached && (o.bit == -1 ? o.active : state.bit(o.bit)); };
    for (std::int32_t i = 0; i < objects; ++i) {
        const Object& object = room.objects[at(i)];
        if (!active(object)) continue;
        addAction({Kind::use, i, 0}, object.script[1], 0, out);
        addAction({Kind::look, i, 0}, object.script[0], 0, out);
    }
    for (std::int32_t i = 0; i < items; ++i) {
        const Item& item = program_.items[at(i)];
        const int count = state.count(item);
        if (count == 0) continue;
        for (std::int32_t o = 0; o < objects; ++o)
            if (const Object& object = room.objects[at(o)]; object.script[2] != -1 && active(object))
                addAction({Kind::give, i, o}, object.script[2], item.name, out);
        addAction({Kind::useItem, i, 0}, item.script[1], item.name, out);
        addAction({Kind::lookItem, i, 0}, item.script[0], item.name, out);
        for (std::int32_t onto = 0; onto < items; ++onto) {
            const Item& other = program_.items[at(onto)];
            if (other.script[2] == -1 || (onto == i ? count < 2 : state.count(other) == 0)) continue;
            addAction({Kind::combine, i, onto}, other.script[2], item.name, out);
        }
    }
}

// --- a step

Outcome Machine::begin(State& state) {
    state.words.fill(0);
    state.setEvil(0);
    state_ = &state;
    outcome_ = {};
    over_ = false;
    work_ = 0;
    stacks_.load(idle, stack_);
    stack_.frames.push_back({});
    enter(program_.start);
    proceed();
    return std::move(outcome_);
}

Outcome Machine::step(State& state, Action action) {
    state_ = &state;
    outcome_ = {};
    over_ = false;
    work_ = 0;
    useful_ = false;
    stacks_.load(state.stack(), stack_);
    if (start(state, action)) proceed();
    noteUse(action);
    return std::move(outcome_);
}

bool Machine::start(const State& state, Action action) {
    using Kind = Action::Kind;
    const auto object = [&](std::int32_t index) -> const Object& {
        return program_.rooms[at(state.room())].objects[at(index)];
    };
    const auto item = [&](std::int32_t index) -> const Item& { return program_.items[at(index)]; };
    switch (action.kind) {
        case Kind::look: return push(object(action.a).script[0], 0);
        case Kind::use: return push(object(action.a).script[1], 0);
        case Kind::give: return push(object(action.b).script[2], item(action.a).name);
        case Kind::lookItem: return push(item(action.a).script[0], item(action.a).name);
        case Kind::useItem: return push(item(action.a).script[1], item(action.a).name);
        case Kind::combine: return push(item(action.b).script[2], item(action.a).name);
        case Kind::tick: return push(program_.rooms[at(state.room())].countDown, 0);
        case Kind::choose: answer(action.a); return true;
        case Kind::win:
        case Kind::lose: {
            Frame& frame = stack_.frames.back();
            if (frame.a != -1) setFlag(frame.a, action.kind == Kind::win);
            frame.waits = Op::nothing;
            ++frame.index;
            return true;
        }
        case Kind::goOn: {
            Frame& frame = stack_.frames.back();
            frame.waits = Op::nothing;
            ++frame.index;
            return true;
        }
    }
    return false;
}

// Begins a run. A click ends the text that stands below it.
bool Machine::push(std::int32_t script, std::int32_t item) {
    if (stack_.frames.size() >= deepestRun) {
        seen.tooDeep = true;
        outcome_.kind = Outcome::Kind::cut;
        return false;
    }
    const bool isTick = program_.scripts[at(script)].role == ScriptRole::countDown;
    if (!isTick && !stack_.frames.empty() && stack_.frames.back().waits == Op::wait) {
        stack_.frames.back().waits = Op::nothing;
        ++stack_.frames.back().index;
    }
    stack_.timer = false;
    stack_.running = true;
    stack_.frames.push_back({script, 0, item});
    return true;
}

void Machine::proceed() {
    while (!over_ && proceedOne()) {
    }
    if (outcome_.kind != Outcome::Kind::on || over_) return;
    if (!state_->bit(program_.layout.countDown)) stack_.timer = false;
    const bool innerChoice = std::any_of(stack_.frames.begin(), stack_.frames.end(),
                                         [](const Frame& f) { return f.waits == Op::choice; });
    if (!innerChoice) stack_.answer = 0;
    state_->setStack(stacks_.numberOf(stack_, tickCanCome()));
    if (stack_.frames.empty()) forget(program_, *state_);
}

void Machine::setFlag(std::int32_t flag, bool on) {
    if (const std::int32_t bit = program_.flagBit[at(flag)]; bit != -1) state_->setBit(bit, on);
}

void forget(const Program& program, State& state) {
    for (const Program::Forgotten& forgotten : program.forgotten) {
        if (forgotten.flagBit != -1 && !state.bit(forgotten.flagBit)) continue;
        for (std::size_t i = 1; i < forgotten.bits.size(); ++i) state.words[i] &= ~forgotten.bits[i];
    }
}

// One instruction, or the end of a run; false when the player is to do something.
bool Machine::proceedOne() {
    if (stack_.frames.empty()) return false;
    Frame& frame = stack_.frames.back();
    if (frame.waits != Op::nothing) {
        if (frame.waits != Op::choice || stack_.answer == 0) return false;
        answer(stack_.answer);
        return true;
    }
    const Script& script = program_.scripts[at(frame.script)];
    const std::int32_t entry = std::min(frame.index, static_cast<std::int32_t>(script.nodes.size()) - 1);
    seen.nodes[at(script.first + entry)] |= Seen::entered;
    const std::int32_t index = script.nodes[at(entry)].acts;
    if (trace != nullptr)
        for (std::int32_t i = entry; i <= index; ++i) trace->push_back({frame.script, i});
    if (index == static_cast<std::int32_t>(script.nodes.size()) - 1) {
        pop();
        return true;
    }
    frame.index = index;
    if (++work_ > suspiciousWork && goesRound()) {
        state_->setStack(hangs);
        over_ = true;
        return false;
    }
    return execute(frame, script.nodes[at(index)]);
}

// The closing steps of a run.
void Machine::pop() {
    stack_.frames.pop_back();
    stack_.timer = true;
    stack_.running = false;
}

bool Machine::execute(Frame& frame, const Node& node) {
    if (node.ending != -1) reach(node.ending);
    if (node.op != Op::nothing && node.op != Op::wait && node.op != Op::testFlag && node.op != Op::testItem)
        useful_ = true;
    switch (node.op) {
        case Op::testFlag:
        case Op::testItem: {
            const bool holds = node.op == Op::testItem ? node.a == frame.item
                                                       : node.a == -1 || state_->bit(program_.flagBit[at(node.a)]);
            if (holds && node.op == Op::testItem && node.a != 0) useful_ = true;
            const Script& script = program_.scripts[at(frame.script)];
            seen.nodes[at(script.first + frame.index)] |= holds ? Seen::held : Seen::failed;
            frame.index = holds ? node.next : node.other;
            return true;
        }
        case Op::set: setFlag(node.a, true); break;
        case Op::clear: setFlag(node.a, false); break;
        case Op::take: takeItem(node.a); break;
        case Op::give: {
            const Item& item = program_.items[at(node.a)];
            if (const int count = state_->count(item); count > 0) state_->setCount(item, count - 1);
            break;
        }
        case Op::object: {
            const auto& byRoom = program_.objectBits[at(node.a)];
            if (const auto bits = byRoom.find(state_->room()); bits != byRoom.end())
                for (const std::int32_t bit : bits->second) state_->setBit(bit, node.on);
            break;
        }
        case Op::evil: addEvil(node.a); break;
        case Op::countDown:
            state_->setBit(program_.layout.countDown, node.a > 0);
            stack_.timer = true;
            period = node.a;
            break;
        case Op::room: enter(node.a); return !over_;
        case Op::choice: stack_.answer = 0; return decide(Op::choice, node.a);
        case Op::game: return decide(Op::game, node.a);
        case Op::leave:
            outcome_.kind = Outcome::Kind::left;
            over_ = true;
            return false;
        case Op::wait:
            if ((tickCanCome() || !stack_.running) && !node.restIsIdle) return decide(Op::wait, 0);
            break;
        case Op::nothing: break;
    }
    if (outcome_.kind == Outcome::Kind::cut) return false;
    frame.index = node.next;
    return true;
}

// The run stands still until the player does something.
bool Machine::decide(Op op, std::int32_t a) {
    stack_.frames.back().waits = op;
    stack_.frames.back().a = a;
    return false;
}

// Takes an answer. Where the scripts of the room have changed under the run, it goes on in the new one.
void Machine::answer(std::int32_t option) {
    Frame& frame = stack_.frames.back();
    const Script& script = program_.scripts[at(frame.script)];
    frame.waits = Op::nothing;
    const Node& asked = node(frame);
    const bool usual = asked.op == Op::choice && at(option) <= asked.cases.size();
    frame.index = usual ? asked.cases[at(option) - 1] : caseTarget(*script.source, frame.index, option);
    stack_.answer = option;
    const std::int32_t before = frame.index - 1;
    if (before < 0 || before >= static_cast<std::int32_t>(script.source->Befehl.size()) ||
        script.source->Befehl[at(before)] != "Fall"_op)
        return;
    seen.nodes[at(script.first + before)] |= Seen::held;
    if (trace != nullptr) trace->push_back({frame.script, before});
    if (script.nodes[at(before)].ending != -1) reach(script.nodes[at(before)].ending);
}

// Enters a room; where there is none by that name, the run ends and the player stays. The running script is over
// but for its closing steps, which those of the room's own script do as well. A room's own scripts run in place, so
// that those that stand below go on in the new room's.
void Machine::enter(std::int32_t room) {
    if (room == -1) return pop();
    const Room& to = program_.rooms[at(room)];
    seen.rooms[at(room)] = 1;
    state_->setRoom(room);
    for (int bit = program_.layout.firstObject; bit < program_.layout.bits; ++bit) state_->setBit(bit, false);
    for (const std::int32_t bit : to.onAtFirst) state_->setBit(bit, true);
    state_->setBit(program_.layout.countDown, false);
    for (std::size_t i = 0; i + 1 < stack_.frames.size(); ++i) {
        Frame& frame = stack_.frames[i];
        const ScriptRole role = program_.scripts[at(frame.script)].role;
        if (role == ScriptRole::start) frame.script = to.start;
        if (role == ScriptRole::countDown) frame.script = to.countDown;
    }
    stack_.frames.back() = {to.start, 0, 0};
    stack_.timer = false;
    stack_.running = true;
}

void Machine::addEvil(std::int32_t points) {
    const std::int32_t old = state_->evil();
    std::int32_t now = old + points;
    if (now < program_.evilLeast || now > program_.evilMost) {
        if (evilCounts_ && program_.evilIsCut) {
            seen.evilCut = true;
            outcome_.kind = Outcome::Kind::cut;
            return;
        }
        now = std::clamp(now, program_.evilLeast, program_.evilMost);
    }
    state_->setEvil(now);
    if (old < 1 && now >= 1) setFlag(program_.evilFlag, true);
    if (old >= 1 && now < 1) setFlag(program_.evilFlag, false);
}

// A bag that is full takes nothing.
void Machine::takeItem(std::int32_t index) {
    const Item& item = program_.items[at(index)];
    if (program_.bagCanFill) {
        int carried = 0;
        for (const Item& other : program_.items) carried += state_->count(other);
        if (carried >= InventarPlätze) {
            seen.bagFull = true;
            return;
        }
    }
    const int count = state_->count(item);
    if (count > 0 && item.bits == 1) {
        seen.doubled[at(index)] = 1;
        return;
    }
    state_->setCount(item, count + 1);
}

// An ending without a name of its own is none behind another one.
void Machine::reach(std::int16_t ending) {
    if (outcome_.ended && !program_.endings[static_cast<std::size_t>(ending)].named) return;
    outcome_.ended = true;
    outcome_.endings.push_back(ending);
}

bool Machine::goesRound() {
    if (work_ > mostWork) return true;
    if (work_ == suspiciousWork + 1) rounds_.clear();
    const auto words = static_cast<std::size_t>(program_.layout.words());
    return !rounds_
                .insert({{state_->words.begin(), state_->words.begin() + static_cast<std::ptrdiff_t>(words)},
                         stack_.frames})
                .second;
}

// An item is of use if a command that changes something runs by it, or if somebody has thought of it.
void Machine::noteUse(Action action) {
    using Kind = Action::Kind;
    const bool withItem = action.kind == Kind::give || action.kind == Kind::lookItem ||
                          action.kind == Kind::useItem || action.kind == Kind::combine;
    if (!withItem || !useful_) return;
    seen.itemUsed[at(action.a)] = 1;
    if (action.kind == Kind::combine) seen.itemUsed[at(action.b)] = 1;
}

}  // namespace zentrox::prove
