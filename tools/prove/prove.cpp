#include "tools/prove/prove.h"

#include <algorithm>
#include <memory>

#include "engine/state/felder.h"
#include "tools/prove/deadends.h"
#include "tools/prove/questions.h"
#include "tools/prove/relevance.h"
#include "tools/prove/walk.h"

namespace zentrox::prove {

namespace {

constexpr std::size_t mostShown = 8;  // things in one list

std::size_t at(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

std::string listed(const std::vector<std::string>& words) {
    std::string list;
    for (std::size_t i = 0; i < words.size() && i < mostShown; ++i) list += (i == 0 ? "" : ", ") + words[i];
    return words.size() > mostShown ? list + " …" : list;
}

class Prover {
public:
    Prover(const story::Story& story, const Marks& marks, const Options& options)
        : story_(story),
          marks_(marks),
          options_(options),
          started_(std::chrono::steady_clock::now()) {}

    Report prove() {
        do {
            program_ = compile(story_, marks_, counted_);
            if (program_.start == -1) throw NoStart{};
            if (program_.layout.words() > mostWords || program_.rooms.size() > 0xFFFF) throw TooLarge{};
            stacks_ = std::make_unique<Stacks>(program_);
            questions_ = std::make_unique<Questions>(program_);
            report_ = {};
        } while (!search());
        tellEndings();
        tellDeadEnds();
        if (options_.reduced) askForTheRest();
        tellRest();
        describe();
        return std::move(report_);
    }

private:
    // --- the search for endings

    // False if some item can be carried more than once, which asks for another layout of the state.
    bool search() {
        const Asked asked{[this](std::int32_t script, std::int32_t index) {
                              return program_.scripts[at(script)].nodes[at(index)].ending != -1;
                          },
                          nullptr, nullptr};
        losers_ = Influence(program_).of(asked).nodes;
        if (options_.reduced) {
            reduced_ = projectFor(asked);
            if (!scout()) return false;
        } else {
            reduced_ = program_;
            evilCounts_ = true;
        }
        Plan plan;
        plan.evilCounts = evilCounts_;
        if (options_.reduced) plan.actionMatters = &matters_;
        plan.progress = options_.progress;
        search_ = std::make_unique<Search>(reduced_, plan, bounds());
        search_->run();
        if (isDoubled(search_->seen())) return false;
        if (!options_.reduced) questions_->add(search_->seen(), program_);
        report_.states = search_->store().size();
        report_.steps = search_->steps();
        take(*search_);
        return true;
    }
    Program projectFor(const Asked& asked) {
        const Relevance relevance = Influence(program_).of(asked);
        matters_ = relevance.actions;
        evilCounts_ = relevance.evil;
        return project(program_, relevance, [&](std::int32_t flag) { return Influence(program_, flag).of(asked); });
    }
    bool isDoubled(const Seen& seen) {
        bool any = false;
        for (std::size_t i = 0; i < seen.doubled.size(); ++i)
            if (seen.doubled[i]) any = counted_.insert(upper(program_.items[i].file)).second || any;
        return any;
    }
    Bounds bounds() const {
        Bounds bounds = options_.bounds;
        if (bounds.seconds) *bounds.seconds = std::max(0.0, *bounds.seconds - seconds());
        return bounds;
    }
    double seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - started_).count();
    }
    void take(const Search& search) {
        report_.complete = report_.complete && search.complete();
        report_.evilCut = report_.evilCut || search.seen().evilCut;
        report_.tooDeep = report_.tooDeep || search.seen().tooDeep;
        report_.megabytes = std::max(report_.megabytes, search.memory() >> 20U);
    }

    // Looks around: a few of the plays, but those that differ most. What they run is known to run.
    bool scout() {
        for (const char* const from : {"Start.lsd", "Laden.lsd"}) {
            Program program = program_;
            const auto room = std::find_if(program.rooms.begin(), program.rooms.end(),
                                           [&](const Room& r) { return equalIgnoringCase(r.source->file, from); });
            if (room == program.rooms.end()) continue;
            program.start = static_cast<std::int32_t>(room - program.rooms.begin());
            Plan plan;
            plan.mask = StateMask(at(program.layout.words()));
            plan.mask[0] = ~std::uint64_t{0xFFFF};
            plan.novelties = true;
            plan.edges = false;
            Search search(program, plan, bounds());
            search.run();
            if (isDoubled(search.seen())) return false;
            questions_->add(search.seen(), program_);
        }
        return true;
    }

    // --- endings

    void tellEndings() {
        std::map<std::string, std::pair<FoundEnding, Search::Hit>> byName;
        for (const auto& [number, hit] : search_->hits()) {
            const std::string& name = program_.endings[at(number)].name;
            const auto [entry, isNew] =
                byName.try_emplace(name, FoundEnding{name, hit.steps, hit.mostSteps, {}, {}}, hit);
            if (isNew) continue;
            entry->second.first.mostSteps = std::max(entry->second.first.mostSteps, hit.mostSteps);
            if (hit.steps < entry->second.first.steps) {
                entry->second.first.steps = hit.steps;
                entry->second.second = hit;
            }
        }
        for (auto& [name, found] : byName) {
            auto& [ending, hit] = found;
            std::vector<Action> way;
            if (hit.from != nobody) {
                way = search_->wayTo(hit.from);
                way.push_back(hit.action);
            }
            tellWay(ending, way, "Ende „" + name + "“, " + steps(ending.steps));
            report_.endings.push_back(std::move(ending));
        }
        std::stable_sort(report_.endings.begin(), report_.endings.end(),
                         [](const FoundEnding& a, const FoundEnding& b) { return a.steps < b.steps; });
        if (report_.endings.empty() && search_->complete()) tellNoEnding();
    }
    template <class Found>
    void tellWay(Found& found, const std::vector<Action>& way, const std::string& title) {
        Seen seen(program_);
        const auto played = play(program_, *stacks_, way, &seen);
        questions_->add(seen, program_);
        found.walk = walkText(program_, *stacks_, played, title);
        found.play = tell(program_, *stacks_, played);
    }
    // Behind "nach".
    static std::string stepsThen(std::size_t count) {
        return std::to_string(count) + (count == 1 ? " Schritt" : " Schritten");
    }
    static std::string steps(std::size_t count) {
        return std::to_string(count) + (count == 1 ? " Schritt" : " Schritte");
    }

    void tellNoEnding() {
        std::string message = "kein Spiel erreicht ein Ende";
        if (program_.endings.empty())
            message =
                "diese Geschichte hat kein Ende: keine Zeile „System Abspann“ und keine, die den Raum schließt; "
                "welche "
                "Zeile ein Ende ist, sagt „// ende: NAME“ in einer Zeile darüber";
        report_.findings.error(program_.rooms[at(program_.start)].source->head, "ende-fehlt", message + proviso());
    }

    // --- dead ends

    void tellDeadEnds() {
        if (report_.endings.empty()) return;
        search_->findAlive();
        for (const LosingStep& losing : findLosingSteps(reduced_, losers_, *search_)) {
            const story::Place place = program_.placeOf(losing.script, losing.index);
            report_.findings.error(place, "verbaut", lossInWords(losing));
            DeadEnd dead{place, static_cast<std::uint32_t>(losing.way.size()), {}, {}};
            tellWay(dead, losing.way, "Sackgasse nach " + stepsThen(losing.way.size()));
            report_.dead.push_back(std::move(dead));
        }
    }
    std::string lossInWords(const LosingStep& losing) {
        const auto played = play(program_, *stacks_, losing.way, nullptr);
        const PlayedStep& last = played.back();
        std::string text = "hinter diesem Schritt ist kein Ende mehr zu erreichen (" +
                           inWords(program_, last.before, last.action) + ", nach " + stepsThen(losing.way.size()) +
                           ")";
        if (last.after.stack() == hangs) text += "; das Spiel kommt aus seiner Schleife nicht mehr heraus";
        std::vector<std::string> gone;
        std::vector<std::string> carried;
        for (const Item& item : program_.items) {
            const std::string name = "„" + toUtf8(story::itemName(item.file)) + "“";
            const int now = last.after.count(item);
            if (now > 0) carried.push_back(name);
            for (const PlayedStep& step : played)
                if (now == 0 && step.before.words[0] != 0 && step.before.count(item) > 0) {
                    gone.push_back(name);
                    break;
                }
        }
        if (!losing.missing.empty()) text += "; weiter ginge es mit " + listed(losing.missing);
        if (!gone.empty()) text += "; weggegeben: " + listed(gone);
        return text + "; getragen: " + (carried.empty() ? "nichts" : listed(carried)) + proviso();
    }

    // --- what no play comes to

    // What nobody has seen so far may still be there: a search for just that.
    void askForTheRest() {
        if (!report_.complete || !questions_->open()) return;
        lookAround();
        if (!questions_->open()) return;
        const Asked asked{[this](std::int32_t s, std::int32_t i) { return questions_->isAsked(s, i); },
                          [this](std::int32_t item) { return questions_->isAskedItem(item); },
                          [this](std::int32_t flag) { return questions_->isAskedFlag(flag); }};
        const Program rest = projectFor(asked);
        Plan plan;
        plan.evilCounts = evilCounts_;
        plan.actionMatters = &matters_;
        plan.edges = false;
        plan.progress = options_.progress;
        plan.enough = [&](const Seen& seen) { return isAnswered(seen, rest); };
        Search search(rest, plan, bounds());
        search.run();
        questions_->add(search.seen(), rest);
        const bool complete = report_.complete;
        take(search);
        if (!questions_->open()) report_.complete = complete;
    }

    // From each state of the search everything that a player can do, whether it matters or not.
    void lookAround() {
        const Projector projector(program_, reduced_);
        Plan plan;
        plan.projector = &projector;
        plan.novelties = true;
        plan.edges = false;
        plan.progress = options_.progress;
        plan.enough = [&](const Seen& seen) { return isAnswered(seen, program_); };
        Search search(program_, plan, bounds());
        search.run();
        questions_->add(search.seen(), program_);
    }
    bool isAnswered(const Seen& seen, const Program& by) const {
        Questions now = *questions_;
        now.add(seen, by);
        return !now.open();
    }

    void tellRest() {
        if (report_.complete)
            questions_->tell(report_.findings, proviso());
        else
            report_.neverRun = questions_->openLines();
        report_.findings.settle(story_);
        std::erase_if(report_.dead, [&](const DeadEnd& dead) { return isSilent(dead.place, "verbaut"); });
    }
    bool isSilent(const story::Place& place, const std::string& code) const {
        return std::find(story_.silences.begin(), story_.silences.end(),
                         story::Silence{place.file, place.line, code}) != story_.silences.end();
    }
    std::string proviso() const {
        std::string text;
        if (report_.evilCut)
            text += "; so weit die bösen Punkte zwischen " + std::to_string(program_.evilLeast) + " und " +
                    std::to_string(program_.evilMost) + " bleiben";
        if (report_.tooDeep)
            text += "; so weit nicht mehr als " + std::to_string(deepestRun) + " Skripte ineinander stehen";
        return text;
    }

    void describe() {
        report_.evilLeast = program_.evilLeast;
        report_.evilMost = program_.evilMost;
        report_.seconds = seconds();
        for (std::size_t i = 0; i < program_.rooms.size(); ++i) {
            report_.rooms.push_back(toUtf8(program_.rooms[i].source->file));
            report_.entered.push_back(questions_->entered(i));
        }
        for (const Script& script : program_.scripts)
            for (std::size_t i = 0; i + 1 < script.nodes.size(); ++i) {
                const Node& node = script.nodes[i];
                if (node.op != Op::room || node.a == -1 || !questions_->ran(script, static_cast<std::int32_t>(i)))
                    continue;
                report_.passages.push_back({script.room, node.a, passageInWords(script, i)});
            }
    }
    // What is clicked there, and the flags and items that have to be there.
    std::string passageInWords(const Script& script, std::size_t index) const {
        std::string text =
            script.object == -1
                ? script.item == -1 ? "" : toUtf8(story::itemName(program_.items[at(script.item)].file))
                : toUtf8(Trim(program_.rooms[at(script.room)].source->room.Objekte[at(script.object)].Name));
        for (std::size_t i = 0; i < index; ++i) {
            const Node& node = script.nodes[i];
            if (node.op != Op::testFlag && node.op != Op::testItem) continue;
            const bool within = static_cast<std::size_t>(node.other) > index;
            const bool behind = !within && node.other > 0 && static_cast<std::size_t>(node.other) <= index &&
                                static_cast<std::size_t>(script.nodes[at(node.other) - 1].next) > index &&
                                script.nodes[at(node.other) - 1].next != node.other;
            if (!within && !behind) continue;
            const Text name = node.op == Op::testItem ? program_.itemNames[at(node.a)]
                              : node.a == -1          ? Text()
                                                      : program_.flags[at(node.a)];
            text += (text.empty() ? "" : "\n") + std::string(behind ? "ohne " : "") + toUtf8(name);
        }
        return text;
    }

    const story::Story& story_;
    const Marks& marks_;
    const Options& options_;
    std::chrono::steady_clock::time_point started_;
    std::set<Text> counted_;
    Program program_;
    Program reduced_;
    std::vector<std::vector<char>> matters_;
    std::vector<char> losers_;  // nodes that can have a part in a dead end
    bool evilCounts_ = true;
    std::unique_ptr<Stacks> stacks_;
    std::unique_ptr<Questions> questions_;
    std::unique_ptr<Search> search_;
    Report report_;
};

}  // namespace

Report prove(const story::Story& story, const Marks& marks, const Options& options) {
    return Prover(story, marks, options).prove();
}

}  // namespace zentrox::prove
