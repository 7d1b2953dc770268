// What can influence what is asked: the cone of influence of some instructions, worked out from the scripts alone.
// What lies outside of it may have any value without a play going another way, or getting there in more or fewer
// steps.
#pragma once

#include <functional>

#include "tools/prove/machine.h"

namespace zentrox::prove {

struct Relevance {
    std::vector<char> flags;
    std::vector<char> idleFlags;  // those of them that matter while no script runs: some run reads them first
    std::vector<char> items;
    std::vector<char> nodes;  // instructions that do something to what matters
    bool evil = false;
    // By script and name of the dropped item: whether a run of it can do something that matters.
    std::vector<std::vector<char>> actions;
    std::vector<std::vector<char>> objects;  // by room
};

// What the answers depend on.
struct Asked {
    std::function<bool(std::int32_t script, std::int32_t index)> runs;  // whether this instruction runs
    std::function<bool(std::int32_t item)> carried;                     // whether this item is carried; may be null
    std::function<bool(std::int32_t flag)> set;                         // whether this flag is set; may be null
};

// The shape of the scripts, which is the same whatever is asked. With `assumed` it is that of a game in which this
// flag is set for good.
class Influence {
public:
    explicit Influence(const Program& program, std::int32_t assumed = -1);

    Relevance of(const Asked& asked) const;

private:
    friend class Cone;
    // A condition on a flag, and what runs only because of how it comes out.
    struct Condition {
        std::int32_t script;
        std::int32_t index;
        std::vector<std::int32_t> region;
        bool goesRound = false;  // within the region, so that it may never be left
    };
    void findReached(const Script& script);
    void findConditions(std::int32_t script);
    void findTraps(std::int32_t script);

    const Program& program_;
    std::int32_t assumed_;
    std::vector<char> reached_;  // nodes that some run can come to
    std::vector<Condition> conditions_;
    std::vector<char> traps_;  // nodes that no way leads out of
};

// A flag that nothing clears, once it is set.
bool isPermanent(const Program& program, std::int32_t flag);

// The same story with only what matters in its states. What is no longer needed as soon as a flag is set for good,
// or while no script runs, is forgotten then. The steps of a player keep their numbers.
Program project(const Program& whole, const Relevance& relevance,
                const std::function<Relevance(std::int32_t assumed)>& relevanceWith);

// Tells states of the whole story apart as those of its projection are told apart.
class Projector {
public:
    Projector(const Program& whole, const Program& projected);
    int words() const { return projected_.layout.words(); }
    void project(const State& state, std::uint64_t* words) const;

private:
    const Program& projected_;
    std::vector<std::pair<std::int32_t, std::int32_t>> bits_;  // of the whole and of the projection
    std::vector<std::vector<std::pair<std::int32_t, std::int32_t>>> objectBits_;  // by room
    bool evil_ = false;
};

}  // namespace zentrox::prove
