// Proves a story by searching through all plays: which endings can be reached and how, where a player gets stuck
// for good, and what no play ever comes to.
#pragma once

#include "tools/prove/endings.h"
#include "tools/prove/walk.h"
#include "tools/story/finding.h"

namespace zentrox::prove {

struct Options {
    Bounds bounds;
    bool reduced = true;  // leaves out what can't influence the answers; else each bit of the state counts
    std::function<void(const Progress&)> progress;
};

struct FoundEnding {
    std::string name;
    std::uint32_t steps = 0;      // of a shortest play
    std::uint32_t mostSteps = 0;  // of a play that takes no detour but ends as late as one can
    std::string walk;
    std::vector<ToldStep> play;
};

// A step behind which no ending can be reached any more.
struct DeadEnd {
    story::Place place;
    std::uint32_t steps = 0;  // of a shortest play into it, this step included
    std::string walk;
    std::vector<ToldStep> play;
};

struct Passage {  // from room to room, for the graph
    std::int32_t from = -1;
    std::int32_t to = -1;
    std::string what;
};

struct Report {
    bool complete = true;
    bool evilCut = false;  // it holds as long as the evil counter stays within bounds
    std::int32_t evilLeast = 0;
    std::int32_t evilMost = 0;
    bool tooDeep = false;  // it holds as long as no more than a few runs stand inside each other
    std::uint64_t states = 0;
    std::uint64_t steps = 0;
    double seconds = 0;
    std::size_t megabytes = 0;
    std::vector<FoundEnding> endings;  // the shortest first
    std::vector<DeadEnd> dead;         // the earliest first
    std::size_t neverRun = 0;          // lines, where not everything was seen
    story::Findings findings;          // settled
    std::vector<std::string> rooms;    // files, UTF-8
    std::vector<char> entered;         // of these
    std::vector<Passage> passages;
};

// Throws `NoStart` for a story without a room Start.lsd, and `TooLarge` for one whose states would not fit.
struct NoStart {};
struct TooLarge {};
Report prove(const story::Story& story, const Marks& marks, const Options& options);

}  // namespace zentrox::prove
