#include "tools/story/blocks.h"

#include <algorithm>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"

namespace zentrox::story {

namespace {

constexpr char optionMark = '|';

// Walks over a script once and keeps the blocks that are open.
class BlockFinder {
public:
    explicit BlockFinder(const Skript& script) : script_(script) {
        result_.blockOf.assign(script.Befehl.size(), nowhere);
    }

    Blocks find() {
        for (std::size_t i = 0; i < script_.Befehl.size(); ++i) step(i);
        while (!open_.empty()) leaveOpen();
        std::sort(result_.problems.begin(), result_.problems.end(),
                  [](const BlockProblem& a, const BlockProblem& b) { return a.index < b.index; });
        return std::move(result_);
    }

private:
    bool isChoice(const Block& block) const { return opens(zentrox::Block::choice, script_.Befehl[block.begin]); }

    void step(std::size_t i) {
        const std::int32_t command = script_.Befehl[i];
        const Opcode* const row = findOpcode(command);
        if (!row) return;
        const bool choice = row->block == zentrox::Block::choice;
        switch (row->role) {
            case Role::plain: return;
            case Role::opens: return open(i, choice);
            case Role::divides: return choice ? aCase(i) : otherwise(i);
            case Role::closes: return close(i, choice);
        }
    }

    void open(std::size_t i, bool choice) {
        Block block;
        block.begin = i;
        open_.push_back(std::move(block));
        ++openOf(choice);
    }

    void problem(std::size_t i, const std::string& message) { result_.problems.push_back({i, message}); }

    void otherwise(std::size_t i) {
        if (open_.empty() || isChoice(open_.back()))
            problem(i, "\"Sonst\" gehört in ein WennMerker oder WennParameter, hier ist keines offen");
        else if (open_.back().otherwise != nowhere)
            problem(i, "dieses Wenn hat schon ein \"Sonst\"; was danach kommt, gehört hinter EndeWenn");
        else
            open_.back().otherwise = i;
    }

    void aCase(std::size_t i) {
        if (!open_.empty() && isChoice(open_.back()))
            open_.back().cases.push_back(i);
        else
            problem(i, open_.empty() ? "\"Fall\" gehört in eine Auswahl, hier ist keine offen"
                                     : "vor \"Fall\" fehlt ein EndeWenn");
    }

    void close(std::size_t i, bool choice) {
        if (openOf(choice) == 0) {
            problem(i, choice ? "\"EndeAuswahl\" schließt nichts, hier ist keine Auswahl offen"
                              : "\"EndeWenn\" schließt nichts, hier ist kein Wenn offen");
            return;
        }
        while (isChoice(open_.back()) != choice) leaveOpen();
        --openOf(choice);
        keep(i);
    }

    void keep(std::size_t end) {
        Block block = std::move(open_.back());
        open_.pop_back();
        block.end = end;
        const std::size_t number = result_.all.size();
        result_.blockOf[block.begin] = result_.blockOf[end] = number;
        if (block.otherwise != nowhere) result_.blockOf[block.otherwise] = number;
        for (const std::size_t i : block.cases) result_.blockOf[i] = number;
        result_.all.push_back(std::move(block));
    }

    void leaveOpen() {
        const Block& block = open_.back();
        problem(block.begin,
                isChoice(block) ? "dieser Auswahl fehlt ihr EndeAuswahl" : "diesem Wenn fehlt sein EndeWenn");
        --openOf(isChoice(block));
        open_.pop_back();
    }

    int& openOf(bool choice) { return choice ? openChoices_ : openConditions_; }

    const Skript& script_;
    Blocks result_;
    std::vector<Block> open_;
    int openChoices_ = 0;
    int openConditions_ = 0;
};

}  // namespace

Blocks findBlocks(const Skript& script) {
    return BlockFinder(script).find();
}

TextView argumentOf(const Skript& script, std::size_t index) {
    return index < script.Argument.size() ? TextView(script.Argument[index]) : TextView();
}

ChoiceText splitChoice(TextView argument) {
    std::vector<Text> fields;
    for (std::size_t end = 0; end != TextView::npos; argument.remove_prefix(std::min(end + 1, argument.size()))) {
        end = argument.find(optionMark);
        fields.emplace_back(argument.substr(0, end));
    }
    ChoiceText result;
    result.announced = Zahl(fields[0]);
    if (fields.size() > 1) result.question = fields[1];
    for (std::size_t i = 2; i < fields.size(); ++i) result.options.push_back(fields[i]);
    while (!result.options.empty() && Getrimmt(result.options.back()).empty() &&
           static_cast<double>(result.options.size()) > result.announced.value_or(0))
        result.options.pop_back();
    return result;
}

std::int32_t optionCount(TextView argument) {
    return std::max(Runden(Val(argument.substr(0, argument.find(optionMark)))), 0);
}

}  // namespace zentrox::story
