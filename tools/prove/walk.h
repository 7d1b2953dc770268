// Tells a way through the story as a walk that `zentrox-probe` plays, in a room's own words: objects, items,
// answers.
#pragma once

#include "tools/prove/search.h"

namespace zentrox::prove {

struct PlayedStep {
    Action action;
    State before;
    State after;
    Outcome outcome;
    std::vector<TraceStep> trace;  // what has run in it
    std::int32_t period = 0;       // of the count-down, in milliseconds
};

// Plays a way from the beginning with the whole story, nothing left out. The first step is the start of the first
// room; its action means nothing.
std::vector<PlayedStep> play(const Program& program, Stacks& stacks, const std::vector<Action>& way, Seen* seen);

// The walk, UTF-8. `title` becomes its first comment.
std::string walkText(const Program& program, Stacks& stacks, const std::vector<PlayedStep>& steps,
                     const std::string& title);

// What somebody who reads about a play wants to know of one step.
struct ToldStep {
    std::string room;                // in which it is taken, UTF-8
    std::string what;                // the player does; empty for the beginning
    story::Place place;              // of the first command that it runs; file -1 if it runs none
    std::vector<std::string> texts;  // that are shown in it, lines divided by "#"
};
std::vector<ToldStep> tell(const Program& program, const Stacks& stacks, const std::vector<PlayedStep>& steps);

// What the player does in a step, German, UTF-8: `„Tür“ links`.
std::string inWords(const Program& program, const State& before, Action action);

}  // namespace zentrox::prove
