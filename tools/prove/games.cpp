#include "tools/prove/games.h"

#include <algorithm>
#include <memory>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/prove/relevance.h"
#include "tools/story/blocks.h"

namespace zentrox::prove {

namespace {

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

Text gameOf(const Script& script, std::size_t index) {
    return upper(Getrimmt(Feld(story::argumentOf(*script.source, index), ",", 1)));
}

class Asker {
public:
    Asker(const story::Story& story, const Marks& marks, const Options& options)
        : story_(story),
          marks_(marks),
          options_(options) {}

    // An item that turns out to be carried more than once asks for another layout of the state.
    std::vector<GameNeed> ask() {
        for (;;) {
            const std::size_t counted = counted_.size();
            std::vector<GameNeed> needs = askOnce();
            if (counted_.size() == counted) return needs;
        }
    }

private:
    std::vector<GameNeed> askOnce() {
        program_ = compile(story_, marks_, counted_);
        if (program_.start == -1) throw NoStart{};
        if (program_.layout.words() > mostWords || program_.rooms.size() > 0xFFFF) throw TooLarge{};
        std::vector<GameNeed> needs = games();
        for (GameNeed& need : needs) need.needed = neverEnds(without(need.name));
        const bool any = std::any_of(needs.begin(), needs.end(), [](auto& need) { return need.needed == true; });
        if (any && neverEnds(program_) != false)
            for (GameNeed& need : needs) need.needed = false;
        return needs;
    }

    // True if the play goes from this instruction into a game, as the search has it.
    static bool opensGame(const Script& script, std::size_t index) { return script.nodes[index].op == Op::game; }

    std::vector<GameNeed> games() const {
        std::map<Text, GameNeed> byName;
        for (std::size_t s = 0; s < program_.scripts.size(); ++s) {
            const Script& script = program_.scripts[s];
            for (std::size_t i = 0; i + 1 < script.nodes.size(); ++i)
                if (opensGame(script, i))
                    byName.try_emplace(gameOf(script, i), GameNeed{gameOf(script, i),
                                                                   program_.placeOf(static_cast<std::int32_t>(s),
                                                                                    static_cast<std::int32_t>(i)),
                                                                   {}});
        }
        std::vector<GameNeed> all;
        for (auto& [name, need] : byName) all.push_back(std::move(need));
        return all;
    }

    // The game is lost at once, always.
    Program without(const Text& game) const {
        Program program = program_;
        for (Script& script : program.scripts)
            for (std::size_t i = 0; i + 1 < script.nodes.size(); ++i) {
                Node& node = script.nodes[i];
                if (opensGame(script, i) && gameOf(script, i) == game)
                    node.op = node.a == -1 ? Op::nothing : Op::clear;
            }
        return program;
    }

    // Whether no play of it reaches an ending.
    std::optional<bool> neverEnds(const Program& program) {
        const Asked asked{[&](std::int32_t script, std::int32_t index) {
                              return program.scripts[at(script)].nodes[at(index)].ending != -1;
                          },
                          nullptr, nullptr};
        const Relevance relevance = Influence(program).of(asked);
        const Program reduced =
            options_.reduced
                ? project(program, relevance, [&](std::int32_t flag) { return Influence(program, flag).of(asked); })
                : program;
        const Search* running = nullptr;
        Plan plan;
        plan.evilCounts = relevance.evil;
        plan.edges = false;
        plan.actionMatters = &relevance.actions;
        plan.progress = options_.progress;
        plan.enough = [&running](const Seen&) { return !running->hits().empty(); };
        Search search(reduced, plan, options_.bounds);
        running = &search;
        search.run();
        for (std::size_t i = 0; i < search.seen().doubled.size(); ++i)
            if (search.seen().doubled[i] != 0) counted_.insert(upper(program.items[i].file));
        if (!search.hits().empty()) return false;
        if (!search.complete() || search.seen().evilCut || search.seen().tooDeep) return std::nullopt;
        return true;
    }

    const story::Story& story_;
    const Marks& marks_;
    const Options& options_;
    std::set<Text> counted_;
    Program program_;
};

}  // namespace

std::vector<GameNeed> gameNeeds(const story::Story& story, const Marks& marks, const Options& options) {
    return Asker(story, marks, options).ask();
}

std::string asText(const story::Story& story, const std::vector<GameNeed>& needs) {
    std::string text;
    std::string free;
    std::string unknown;
    for (const GameNeed& need : needs) {
        const std::string name = toUtf8(need.name);
        if (!need.needed) {
            unknown += (unknown.empty() ? "" : ", ") + name;
        } else if (!*need.needed) {
            free += (free.empty() ? "" : ", ") + name;
        } else {
            const story::Place& place = *need.place;
            text += story.files[static_cast<std::size_t>(place.file)] + ":" + std::to_string(place.line) +
                    ": ohne einen Sieg in " + name + " ist kein Ende zu erreichen\n";
        }
    }
    if (!free.empty()) text += "Auch ohne Sieg kommt man zu einem Ende: " + free + ".\n";
    if (!unknown.empty()) text += "Nicht zu Ende gesucht: " + unknown + ".\n";
    return text;
}

}  // namespace zentrox::prove
