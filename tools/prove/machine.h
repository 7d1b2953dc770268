// Runs the steps of a player on packed states. What it does is what the interpreter does; a test holds it to that.
#pragma once

#include <atomic>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "tools/prove/program.h"

namespace zentrox::prove {

constexpr int mostWords = 48;
// So many runs inside each other are looked at: ticks inside the waits of a script, and clicks behind them.
constexpr std::size_t deepestRun = 4;

// A packed state: the head holds where the player is, the other words are the bits of `Layout`.
struct State {
    std::array<std::uint64_t, mostWords> words;  // as many as `Layout::words` count

    std::int32_t evil() const { return static_cast<std::int32_t>(words[0] & 0xFFFFU) - 0x8000; }
    std::int32_t room() const { return static_cast<std::int32_t>(words[0] >> 16U & 0xFFFFU); }
    std::uint32_t stack() const { return static_cast<std::uint32_t>(words[0] >> 32U); }
    void setEvil(std::int32_t points) {
        words[0] = (words[0] & ~std::uint64_t{0xFFFF}) | static_cast<std::uint64_t>(points + 0x8000);
    }
    void setRoom(std::int32_t room) {
        words[0] = (words[0] & ~std::uint64_t{0xFFFF0000}) | static_cast<std::uint64_t>(room) << 16U;
    }
    void setStack(std::uint32_t stack) {
        words[0] = (words[0] & std::uint64_t{0xFFFFFFFF}) | std::uint64_t{stack} << 32U;
    }
    bool bit(int index) const { return (words[word(index)] >> shift(index) & 1U) != 0; }
    void setBit(int index, bool on) {
        const std::uint64_t mask = std::uint64_t{1} << shift(index);
        words[word(index)] = on ? words[word(index)] | mask : words[word(index)] & ~mask;
    }
    int count(const Item& item) const;
    void setCount(const Item& item, int count);

private:
    static std::size_t word(int index) { return 1 + static_cast<std::size_t>(index) / 64; }
    static unsigned shift(int index) { return static_cast<unsigned>(index) % 64; }
};

// A stack of 0: the player may click. The other one stands for a game that hangs for good.
constexpr std::uint32_t idle = 0;
constexpr std::uint32_t hangs = 0xFFFFFFFF;

// One script in progress.
struct Frame {
    std::int32_t script = -1;
    std::int32_t index = 0;
    std::int32_t item = 0;   // what `WennParameter` compares with: of `Program::itemNames`
    Op waits = Op::nothing;  // in a text, a choice or a game; else it goes on at `index`
    std::int32_t a = 0;      // of that choice or game
    friend auto operator<=>(const Frame&, const Frame&) = default;
};

// The runs that stand inside each other, the innermost last.
struct Stack {
    std::vector<Frame> frames;
    bool running = false;     // `SkriptLäuft`
    bool timer = true;        // the count-down's timer is on, whatever its period
    std::int32_t answer = 0;  // of a choice within a choice, which the outer one takes as well
    friend auto operator<=>(const Stack&, const Stack&) = default;
};

// Numbers for stacks. One script in a choice or a game has its number by itself; the rare others are kept.
class Stacks {
public:
    explicit Stacks(const Program& program) : program_(program) {}
    void load(std::uint32_t number, Stack& stack) const;
    std::uint32_t numberOf(const Stack& stack, bool tickCanCome);

private:
    const Program& program_;
    mutable std::mutex mutex_;
    std::map<Stack, std::uint32_t> numbers_;
    std::vector<const Stack*> kept_;
};

struct Action {
    enum class Kind : std::uint8_t { look, use, give, lookItem, useItem, combine, choose, win, lose, tick, goOn };
    Kind kind = Kind::use;
    std::int32_t a = 0;  // object; item; option
    std::int32_t b = 0;  // the object that the item is given to, or the other item
    std::uint32_t packed() const {
        return static_cast<std::uint32_t>(kind) << 28U | static_cast<std::uint32_t>(a) << 14U |
               static_cast<std::uint32_t>(b);
    }
    static Action unpacked(std::uint32_t bits) {
        return {static_cast<Kind>(bits >> 28U), static_cast<std::int32_t>(bits >> 14U & 0x3FFFU),
                static_cast<std::int32_t>(bits & 0x3FFFU)};
    }
};

// What a step has come to.
struct Outcome {
    enum class Kind : std::uint8_t { on, left, cut } kind = Kind::on;
    bool ended = false;  // an ending was on the way
    std::vector<std::int16_t> endings;
};

// What has run in any step.
struct Seen {
    static constexpr std::uint8_t entered = 1;
    static constexpr std::uint8_t held = 2;  // a condition came out true
    static constexpr std::uint8_t failed = 4;
    std::vector<std::uint8_t> nodes;
    std::vector<std::uint8_t> itemUsed;
    std::vector<std::uint8_t> rooms;
    std::vector<std::uint8_t> doubled;  // items that would be carried twice, where there is one bit for them
    bool bagFull = false;
    bool tooDeep = false;  // a step was left out because of `deepestRun`
    bool evilCut = false;

    explicit Seen(const Program& program)
        : nodes(static_cast<std::size_t>(program.nodeCount)),
          itemUsed(program.items.size()),
          rooms(program.rooms.size()),
          doubled(program.items.size()) {}
    void add(const Seen& other);
};

// One instruction that has run, for those who tell of a play.
struct TraceStep {
    std::int32_t script;
    std::int32_t index;
};

// Clears what counts for nothing while no script runs.
void forget(const Program& program, State& state);

class Machine {
public:
    // `evilCounts`: beyond its bounds the evil counter is not followed; else it stops there.
    Machine(const Program& program, Stacks& stacks, bool evilCounts);

    // Where a game begins, once Start.lsd has run its script up to where the player is asked first.
    Outcome begin(State& state);
    // Everything that a player can do. Steps that `actionMatters` refuses are left out.
    void actions(const State& state, std::vector<Action>& out);
    // Does one of these.
    Outcome step(State& state, Action action);

    Seen seen;
    // By script and name of the dropped item; empty: each matters.
    const std::vector<std::vector<char>>* actionMatters = nullptr;
    std::vector<TraceStep>* trace = nullptr;
    // The period of the last `CountDownSetzen`, for those who tell of a play.
    std::int32_t period = 0;

private:
    const Node& node(const Frame& frame) const {
        const auto& nodes = program_.scripts[static_cast<std::size_t>(frame.script)].nodes;
        return nodes[std::min(static_cast<std::size_t>(frame.index), nodes.size() - 1)];
    }
    void addClicks(const State& state, std::vector<Action>& out);
    bool matters(std::int32_t script, std::int32_t item) const {
        const auto& byItem = (*actionMatters)[static_cast<std::size_t>(script)];
        return byItem[byItem.size() > 1 ? static_cast<std::size_t>(item) : 0] != 0;
    }
    void addAction(Action action, std::int32_t script, std::int32_t item, std::vector<Action>& out);
    bool push(std::int32_t script, std::int32_t item);
    bool start(const State& state, Action action);
    void proceed();
    bool proceedOne();
    bool decide(Op op, std::int32_t a);
    void pop();
    void setFlag(std::int32_t flag, bool on);
    bool execute(Frame& frame, const Node& node);
    void enter(std::int32_t room);
    void addEvil(std::int32_t points);
    void takeItem(std::int32_t item);
    void reach(std::int16_t ending);
    void answer(std::int32_t option);
    bool tickCanCome() const { return stack_.timer && state_->bit(program_.layout.countDown); }
    bool goesRound();
    void noteUse(Action action);

    const Program& program_;
    Stacks& stacks_;
    bool evilCounts_;
    State* state_ = nullptr;
    Stack stack_;
    Outcome outcome_;
    bool over_ = false;
    bool useful_ = false;  // something was changed, or asked for the dropped item
    std::int64_t work_ = 0;
    std::set<std::pair<std::vector<std::uint64_t>, std::vector<Frame>>> rounds_;
};

}  // namespace zentrox::prove
