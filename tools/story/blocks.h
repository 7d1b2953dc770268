// The blocks of a compiled script, as far as they are closed properly, and what is wrong with the others.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/state/zustand.h"

namespace zentrox::story {

constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

// A condition or a choice that is closed, by indexes of instructions.
struct Block {
    std::size_t begin = nowhere;
    std::size_t otherwise = nowhere;  // its `Sonst`
    std::vector<std::size_t> cases;   // of a choice
    std::size_t end = nowhere;
};

struct BlockProblem {
    std::size_t index = 0;
    std::string message;  // German, UTF-8
};

struct Blocks {
    std::vector<Block> all;
    // For each instruction the block that it begins, divides or ends; `nowhere` if it does none of these properly.
    std::vector<std::size_t> blockOf;
    std::vector<BlockProblem> problems;

    const Block* at(std::size_t index) const { return blockOf[index] == nowhere ? nullptr : &all[blockOf[index]]; }
};

Blocks findBlocks(const Skript& script);

// The argument of an instruction, empty where the script has none for it.
TextView argumentOf(const Skript& script, std::size_t index);

// The fields of a choice's argument.
struct ChoiceText {
    std::optional<double> announced;  // the number of options as it stands there; nothing if that is no number
    Text question;
    std::vector<Text> options;  // as they stand there, blanks included; empty ones at the end are dropped
};
ChoiceText splitChoice(TextView argument);
// How many options the game offers.
std::int32_t optionCount(TextView argument);

}  // namespace zentrox::story
