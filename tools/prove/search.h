// The search through all plays: breadth first, so that the first way to a state is a shortest one, with all cores.
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "tools/prove/relevance.h"
#include "tools/prove/store.h"

namespace zentrox::prove {

// What stops a search before it has seen everything.
struct Bounds {
    std::optional<double> seconds;
    std::size_t megabytes = 2000;
    std::optional<std::uint64_t> states;
    const std::atomic<bool>* interrupted = nullptr;
    unsigned threads = 0;  // 0: as many as the machine has cores
};

struct Progress {
    std::uint64_t states = 0;
    std::uint64_t open = 0;  // not looked at yet
    std::uint64_t steps = 0;
    double seconds = 0;
};

// What is searched and what is left out.
struct Plan {
    StateMask mask;  // empty: all of the state
    // States that this takes for the same are the same; then there is no mask.
    const Projector* projector = nullptr;
    const std::vector<std::vector<char>>* actionMatters = nullptr;
    bool evilCounts = true;
    bool novelties = false;
    bool edges = true;                        // keeps what `findAlive` needs
    std::function<bool(const Seen&)> enough;  // stops it, asked now and then
    std::function<void(const Progress&)> progress;
};

// Marks of a state.
namespace mark {
constexpr std::uint8_t goal = 1;   // a step from here passes an ending
constexpr std::uint8_t open = 2;   // not all of its steps were taken
constexpr std::uint8_t alive = 4;  // an ending can be reached, or may be
constexpr std::uint8_t after = 8;  // only seen behind an ending
}  // namespace mark

class Search {
public:
    Search(const Program& program, Plan plan, Bounds bounds);

    void run();
    // Marks the states from which an ending can be reached, or from which not everything was seen.
    void findAlive();

    // True if nothing stopped it.
    bool complete() const { return complete_; }
    const Store& store() const { return store_; }
    Store& store() { return store_; }
    const Seen& seen() const { return seen_; }
    std::uint64_t steps() const { return steps_; }
    // Bytes.
    std::size_t memory() const { return store_.memory() + edgeMemory_; }
    Stacks& stacks() { return stacks_; }
    Machine machine();

    struct Hit {
        StateId from = nobody;  // nobody: the beginning itself
        Action action;
        std::uint32_t steps = 0;
        std::uint32_t mostSteps = 0;  // of the deepest state that ends so
    };
    // For each ending of the program that was reached, its first step.
    const std::map<std::int16_t, Hit>& hits() const { return hits_; }

    // Calls it for each state that was looked at, level by level, and each step of it to another state.
    void forEachEdge(const std::function<void(StateId from, StateId to)>& call) const;
    void load(StateId id, State& state) const;
    // The steps from the beginning to a state.
    std::vector<Action> wayTo(StateId id) const;
    double seconds() const;

private:
    struct Batch;
    struct Edges {
        std::size_t shard;
        std::size_t first;
        std::vector<std::uint32_t> flat;  // for each state the number of its targets, and these
    };
    bool takeLevel(std::uint32_t level);
    void work(std::vector<Batch>& batches, std::uint32_t level);
    void expand(Batch& batch, Machine& machine) const;
    void expandState(Batch& batch, Machine& machine, StateId id) const;
    const std::uint64_t* pack(const State& state, std::array<std::uint64_t, 2 * mostWords>& packed) const;
    Store::Added addFirst(const std::uint64_t* words, StateId from, std::uint32_t action);
    void insert(std::vector<Batch>& batches, std::size_t thread);
    void settle(Batch& batch, std::uint32_t level);
    void noteHit(std::int16_t ending, StateId from, Action action, std::uint32_t steps);
    bool mustStop();
    void leaveOpen();
    std::size_t threads() const;
    template <class Work>
    void onAllThreads(std::size_t tasks, const Work& work) const;

    const Program& program_;
    Plan plan_;
    Bounds bounds_;
    int keyWords_;
    Stacks stacks_;
    Store store_;
    Seen seen_;
    std::vector<Machine> machines_;
    std::vector<std::size_t> done_;  // of each shard: how many states were looked at
    std::vector<Edges> edges_;
    std::size_t edgeMemory_ = 0;
    std::map<std::int16_t, Hit> hits_;
    struct Late {
        StateId from;
        std::uint32_t action;
        std::vector<std::uint64_t> words;
    };
    std::vector<Late> late_;  // seen behind an ending
    bool behindEndings_ = false;
    bool complete_ = true;
    std::uint64_t steps_ = 0;
    std::chrono::steady_clock::time_point started_;
    std::chrono::steady_clock::time_point told_;
};

}  // namespace zentrox::prove
