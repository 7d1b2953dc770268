// The ways that a run can take through a compiled script, found without running it.
#pragma once

#include "tools/story/blocks.h"
#include "tools/story/story.h"

namespace zentrox::story {

struct Flow {
    // For each instruction those that can come next; the number of instructions stands for the end of the script.
    std::vector<std::vector<std::size_t>> next;
    std::vector<bool> reached;  // from the first instruction
};

// All blocks of the script must be closed properly.
Flow findFlow(const ScriptView& view, const Blocks& blocks);

// True for a command that serves the event queue before the next one runs.
bool waits(const Skript& script, std::size_t index);

// The jumps of loops that can run for ever without a command that waits.
std::vector<std::size_t> busyLoops(const Skript& script, const Flow& flow);

}  // namespace zentrox::story
