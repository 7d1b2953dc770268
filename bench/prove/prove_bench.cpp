// Proofs: the demo whole; a made story of 40 rooms, 200 flags of which half only remember a remark, 60 items and a
// chain of 30 puzzles; and how many steps a second the search takes on one core, beside a plain search with a hash
// set over the same states.
#include <benchmark/benchmark.h>

#include <deque>
#include <unordered_set>

#include "tools/prove/prove.h"
#include "tools/prove/relevance.h"
#include "tools/story/inputs.h"
#include "tools/story/parser.h"

namespace {

using namespace zentrox;
using namespace zentrox::prove;

constexpr int rooms = 40;
constexpr int puzzles = 30;
constexpr int firstPuzzleRoom = 5;
constexpr std::uint64_t someStates = 300000;

class NoFiles : public story::SourceFiles {
    std::optional<std::string> read(const std::filesystem::path&) override { return std::nullopt; }
};

std::string number(int value) {
    return std::to_string(value);
}

// Something that lies somewhere to be taken, once.
std::string thing(int item, int left) {
    return "    Objekt \"Ding " + number(item) + "\"\n        Fläche Rechteck " + number(left) + " 0 " +
           number(left + 30) + " 40\n        Links\n            WennMerker HAT" + number(item) +
           "\n                Text \"Weg.\"\n" + "            Sonst\n                NimmGegenstand \"ding" +
           number(item) + ".bmp\"\n" + "                SetzeMerker HAT" + number(item) +
           "\n            EndeWenn\n";
}

std::string remark(int index, int left) {
    return "    Objekt \"Bild " + number(index) + "\"\n        Fläche Rechteck " + number(left) + " 100 " +
           number(left + 30) + " 140\n        Rechts\n            WennMerker GEHÖRT" + number(index) +
           "\n                Text \"Ja, ja.\"\n" +
           "            Sonst\n                Text \"Sieh an!\"\n                SetzeMerker GEHÖRT" +
           number(index) + "\n            EndeWenn\n";
}

std::string door(int to, int left, const std::string& flag) {
    const std::string go = "Raumwechsel \"R" + number(to) + ".lsd\"\n";
    std::string text = "    Objekt \"Tür " + number(to) + "\"\n        Fläche Rechteck " + number(left) + " 200 " +
                       number(left + 30) + " 240\n        Links\n";
    if (flag.empty()) return text + "            " + go;
    return text + "            WennMerker " + flag + "\n                " + go +
           "            Sonst\n                Text \"Zu.\"\n            EndeWenn\n";
}

// Needs two things, one after the other.
std::string lock(int puzzle) {
    const std::string first = "DING" + number(2 * puzzle);
    const std::string second = "DING" + number(2 * puzzle + 1);
    return "    Objekt \"Schloss\"\n        Fläche Rechteck 300 300 340 340\n        Ablegen\n            "
           "WennParameter " +
           first + "\n                GibGegenstand \"ding" + number(2 * puzzle) +
           ".bmp\"\n                SetzeMerker HALB" + number(puzzle % 10) +
           "\n            EndeWenn\n            WennParameter " + second + "\n                WennMerker HALB" +
           number(puzzle % 10) + "\n                    GibGegenstand \"ding" + number(2 * puzzle + 1) +
           ".bmp\"\n                    LöscheMerker HALB" + number(puzzle % 10) +
           "\n                    SetzeMerker AUF" + number(puzzle) +
           "\n                EndeWenn\n            EndeWenn\n";
}

std::string madeStory() {
    std::string text = "Raum \"Start.lsd\"\n    Start\n        Raumwechsel \"R0.lsd\"\n";
    int remarks = 0;
    for (int room = 0; room < rooms; ++room) {
        text += "Raum \"R" + number(room) + ".lsd\"\n";
        const int puzzle = room - firstPuzzleRoom;
        // One thing of each puzzle lies where it is needed, the other one some rooms before.
        if (room < puzzles) text += thing(2 * room + 1, 0);
        if (puzzle >= 0 && puzzle < puzzles) text += thing(2 * puzzle, 40) + lock(puzzle);
        for (int i = 0; i < 3 && remarks < 100; ++i) text += remark(remarks++, 40 * i);
        if (room > 0) text += door(room - 1, 0, "");
        if (room + 1 < rooms)
            text += door(room + 1, 40, puzzle >= 0 && puzzle < puzzles ? "AUF" + number(puzzle) : "");
        else
            text +=
                "    Objekt \"Ziel\"\n        Fläche Rechteck 400 300 440 340\n        Links\n            System "
                "Abspann\n";
    }
    return text;
}

story::Story made() {
    NoFiles files;
    story::Findings findings;
    return story::parseSource(madeStory(), "gemacht.story", files, findings);
}

story::Story demo() {
    story::SourceFiles files;
    story::Findings findings;
    const auto sources = story::sourcesOf({DEMO});
    return story::parseSources(sources, files, findings, {});
}

void proof(benchmark::State& state, const story::Story& story) {
    for (auto _ : state) {
        const Report report = zentrox::prove::prove(story, {}, {});
        if (!report.complete || !report.findings.empty()) state.SkipWithError("not proved");
        state.counters["states"] = static_cast<double>(report.states);
        state.counters["MB"] = static_cast<double>(report.megabytes);
    }
}

void Demo(benchmark::State& state) {
    proof(state, demo());
}
BENCHMARK(Demo)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime()->Iterations(1);

void Made(benchmark::State& state) {
    proof(state, made());
}
BENCHMARK(Made)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime()->Iterations(1);

// Steps a second of one core, nothing left out.
void Steps(benchmark::State& state) {
    const story::Story story = demo();
    const Program program = compile(story, {});
    for (auto _ : state) {
        Bounds bounds;
        bounds.states = someStates;
        bounds.threads = static_cast<unsigned>(state.range(0));
        Search search(program, {}, bounds);
        search.run();
        state.counters["steps"] =
            benchmark::Counter(static_cast<double>(search.steps()), benchmark::Counter::kIsRate);
    }
}
BENCHMARK(Steps)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

// The same states in a set of texts.
void Plain(benchmark::State& state) {
    const story::Story story = demo();
    const Program program = compile(story, {});
    const auto bytes = static_cast<std::size_t>(program.layout.words()) * sizeof(std::uint64_t);
    for (auto _ : state) {
        Stacks stacks(program);
        Machine machine(program, stacks, true);
        std::unordered_set<std::string> seen;
        std::deque<State> open(1);
        machine.begin(open.back());
        std::vector<Action> actions;
        std::uint64_t steps = 0;
        while (!open.empty() && seen.size() < someStates) {
            const State from = open.front();
            open.pop_front();
            machine.actions(from, actions);
            for (const Action action : actions) {
                State to = from;
                ++steps;
                if (machine.step(to, action).kind != Outcome::Kind::on) continue;
                if (seen.emplace(reinterpret_cast<const char*>(to.words.data()), bytes).second) open.push_back(to);
            }
        }
        state.counters["steps"] = benchmark::Counter(static_cast<double>(steps), benchmark::Counter::kIsRate);
    }
}
BENCHMARK(Plain)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

}  // namespace
