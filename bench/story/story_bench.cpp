// A story of 100 rooms with 30 objects each, through the whole program: compiled, compiled again without a change,
// checked as source and as data, and read back. The anchor writes the same bytes and does nothing else.
#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

#include "bench/story/big_story.h"
#include "tools/story/commands.h"

namespace {

namespace fs = std::filesystem;
using zentrox::bench::bigStory;
using zentrox::test::TempDirectory;

std::string path(const char* name) {
    return (bigStory().path() / name).string();
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
