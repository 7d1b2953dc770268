// A story of 100 rooms with 30 objects each, through the whole program: compiled, compiled again without a change,
// checked as source and as data, and read back. The anchor writes the same bytes and does nothing else.
#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

#include "tests/support/temp_directory.h"
#include "tools/story/commands.h"

namespace {

namespace fs = std::filesystem;
using zentrox::test::TempDirectory;

constexpr int rooms = 100;
constexpr int objects = 30;

std::string object(int room, int index) {
    const std::string own = std::to_string(room) + "_" + std::to_string(index);
    const int x = 20 * (index % 30);
    std::ostringstream out;
    out << "    Objekt \"Ding " << index << "\"\n        Zeiger \"hand1.ico\"\n        Fläche\n"
        << "            Rechteck " << x << " 100 " << x + 90 << " 220\n"
        << "            Vieleck " << x << " 300, " << x + 60 << " 240, " << x + 120 << " 300, " << x + 60
        << " 400\n"
        << "        Rechts\n            Text \"Das ist Ding " << index << " in Raum " << room << ".\"\n"
        << "                 \"$CEs hat eine zweite Zeile.\"\n"
        << "        Links\n            WennMerker GETAN_" << own << "\n                Text \"Das war es schon.\"\n"
        << "            Sonst\n                SetzeMerker GETAN_" << own << "\n"
        << "                Auswahl \"Was nun?\"\n"
        << "                    Fall \"Weiter\"\n                        Raumwechsel \"Raum" << (room + 1) % rooms
        << ".lsd\"\n                    Fall \"Warten\"\n                        ObjektAus \"Ding "
        << (index + 1) % objects << "\"\n                    Option \"Nichts\"\n                EndeAuswahl\n"
        << "            EndeWenn\n"
        << "        Ablegen\n            WennParameter RING\n                GibGegenstand \"ring.bmp\"\n"
        << "            Sonst\n                Fehlerton\n            EndeWenn\n";
    return out.str();
}

// The sources, with the files that they name, in a directory of their own.
const TempDirectory& story() {
    static const TempDirectory directory;
    static const bool made = [] {
        for (int room = 0; room < rooms; ++room) {
            std::string source = "Raum \"Raum" + std::to_string(room) +
                                 ".lsd\"\n    Bild \"bild.jpg\"\n    Start\n        NimmGegenstand \"ring.bmp\"\n";
            for (int index = 0; index < objects; ++index) source += object(room, index);
            directory.write("story/raum" + std::to_string(room) + ".story", source);
        }
        for (const char* name : {"graphics/bild.jpg", "cursors/hand1.ico", "items/ring.bmp"})
            directory.write(name, "x");
        return true;
    }();
    benchmark::DoNotOptimize(made);
    return directory;
}

std::string path(const char* name) {
    return (story().path() / name).string();
}

int call(const std::vector<std::string>& words) {
    std::ostringstream out;
    std::ostringstream err;
    return zentrox::story::run(words, out, err);
}

void expectClean(benchmark::State& state, int status) {
    if (status != zentrox::story::clean) state.SkipWithError("there were findings");
}

void buildOnce() {
    static const int status = call({"build", path("story"), "--into", path("")});
    if (status != zentrox::story::clean) std::abort();
}

void anchorWriteTheSameBytes(benchmark::State& state) {
    buildOnce();
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(path("rooms"))) {
        std::ifstream in(entry.path(), std::ios::binary);
        files.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    const TempDirectory target;
    for (auto _ : state)
        for (std::size_t i = 0; i < files.size(); ++i) target.write(std::to_string(i), files[i]);
}
BENCHMARK(anchorWriteTheSameBytes)->Unit(benchmark::kMillisecond);

void build(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        fs::remove_all(path("rooms"));
        state.ResumeTiming();
        expectClean(state, call({"build", path("story"), "--into", path("")}));
    }
}
BENCHMARK(build)->Unit(benchmark::kMillisecond);

void buildWithoutAChange(benchmark::State& state) {
    buildOnce();
    for (auto _ : state) expectClean(state, call({"build", path("story"), "--into", path("")}));
}
BENCHMARK(buildWithoutAChange)->Unit(benchmark::kMillisecond);

void checkSources(benchmark::State& state) {
    for (auto _ : state) expectClean(state, call({"check", path("story")}));
}
BENCHMARK(checkSources)->Unit(benchmark::kMillisecond);

void checkData(benchmark::State& state) {
    buildOnce();
    for (auto _ : state) expectClean(state, call({"check", path("")}));
}
BENCHMARK(checkData)->Unit(benchmark::kMillisecond);

void source(benchmark::State& state) {
    buildOnce();
    for (auto _ : state) expectClean(state, call({"source", path("")}));
}
BENCHMARK(source)->Unit(benchmark::kMillisecond);

}  // namespace
