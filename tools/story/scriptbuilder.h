// Puts the instructions of one script together. A choice is written with its options in place; their count and
// their numbers are found here.
#pragma once

#include <map>

#include "tools/story/grammar.h"
#include "tools/story/lower.h"

namespace zentrox::story {

class ScriptBuilder {
public:
    explicit ScriptBuilder(Findings& findings) : findings_(findings) {}

    // Takes one plain command.
    void take(const PlainCommand& command);

    // Ends the script and gives it away.
    void finish(Skript& script, ScriptPlaces& places);

private:
    // One statement whose first word is the name of this command.
    void command(const Opcode& opcode, const Statement& statement);
    // `Option "TEXT"`: an option of the open choice that has no case of its own.
    void option(const Statement& statement);
    // `Roh NAME-OR-NUMBER "ARGUMENT"`: one instruction just as it is.
    void raw(const Statement& statement);

    struct Choice {
        std::size_t index = 0;  // of its instruction
        Text question;
        std::vector<Place> questionPlaces;
        struct Option {
            Text text;
            std::vector<Place> places;
        };
        std::map<std::int32_t, Option> options;
    };
    // An open block: a condition, or a choice.
    struct Block {
        std::optional<Choice> choice;
    };

    void add(std::int32_t number, Text argument, Place command, std::vector<Place> argumentPlaces,
             bool raw = false);
    void openChoice(const Statement& statement);
    std::optional<std::int32_t> addOption(const Statement& statement);
    void closeBlock(bool choice);
    void writeChoice(const Choice& choice);

    Findings& findings_;
    std::vector<Block> blocks_;
    int openChoices_ = 0;
    Skript script_;
    ScriptPlaces places_;
};

}  // namespace zentrox::story
