// Room files against a bare loop of std::from_chars and against std::istream over the same bytes.
#include <benchmark/benchmark.h>

#include <charconv>
#include <random>
#include <sstream>

#include "engine/files/raumdatei.h"
#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

struct Layout {
    const char* name;
    const char* separator;  // between the mask numbers
};
constexpr Layout layouts[]{{"comma", ","}, {"lines", "\r\n"}, {"bare lines", "\n"}, {"comma and blank", ", "}};

// A mask as rooms have them: one or two filled shapes, so runs of 0 and of 255.
Text mask(std::mt19937& chance, const char* separator) {
    const int left = static_cast<int>(chance() % 40);
    const int top = static_cast<int>(chance() % 30);
    Text text;
    for (int column = 0; column < Maskenspalten; ++column)
        for (int row = 0; row < Maskenzeilen; ++row) {
            const bool in = column >= left && column < left + 20 && row >= top && row < top + 15;
            text += in ? "255" : "0";
            text += separator;
        }
    return text;
}

Text room(int objects, const char* separator) {
    std::mt19937 chance(3);
    Text text = "\"Keller.jpg\"\r\n1\r\n2,\"Dunkel hier.\"\r\n31,\"5\"\r\n" + std::to_string(objects - 1) + "\r\n";
    for (int i = 0; i < objects; ++i) {
        text += "#TRUE#\r\n1\r\n1,\"a.mp3\"\r\n2,\"Eine alte Kiste.\"\r\n#TRUE#,0,3,\"KISTE\"\r\n#FALSE#,-1\r\n";
        text += "\"hand.ico\",#TRUE#,\"Kiste " + std::to_string(i) + "\"\r\n" + mask(chance, separator);
    }
    return text + "-1\r\n";
}

// The masks alone, as the anchors read them: they know nothing of texts.
Text numbers(int objects, const char* separator) {
    std::mt19937 chance(3);
    Text text;
    for (int i = 0; i < objects; ++i) text += mask(chance, separator);
    return text;
}

void readRoomOf100(benchmark::State& state) {
    const Layout& layout = layouts[state.range(0)];
    const Text bytes = room(100, layout.separator);
    for (auto _ : state) benchmark::DoNotOptimize(parseRoom(bytes, "x").LetztesObjekt);
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes.size()) * state.iterations());
    state.SetLabel(layout.name);
}
BENCHMARK(readRoomOf100)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

// The least that reads them: skip what is no digit, convert, compare.
void bareFromChars(benchmark::State& state) {
    const Layout& layout = layouts[state.range(0)];
    const Text bytes = numbers(100, layout.separator);
    for (auto _ : state) {
        int set = 0;
        const char* p = bytes.data();
        const char* const end = p + bytes.size();
        while (p != end) {
            if (*p == ',' || *p == ' ' || *p == '\r' || *p == '\n') {
                ++p;
                continue;
            }
            int value = 0;
            p = std::from_chars(p, end, value).ptr;
            set += value == 255;
        }
        benchmark::DoNotOptimize(set);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes.size()) * state.iterations());
    state.SetLabel(layout.name);
}
BENCHMARK(bareFromChars)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void istreamExtraction(benchmark::State& state) {
    const Layout& layout = layouts[state.range(0)];
    const Text bytes = numbers(100, layout.separator);
    for (auto _ : state) {
        int set = 0;
        std::istringstream in(bytes);
        for (int value = 0; in >> value; in.peek() == ',' ? in.ignore() : in) set += value == 255;
        benchmark::DoNotOptimize(set);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes.size()) * state.iterations());
    state.SetLabel(layout.name);
}
BENCHMARK(istreamExtraction)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

// From the disk's cache, path and all.
void openRoomOf10(benchmark::State& state) {
    const test::TempDirectory directory;
    directory.write("rooms/Keller.lsd", room(10, ","));
    const Files files(directory.path());
    const Text path = files.programDirectory() + "ROOMS\\keller.lsd";
    for (auto _ : state) benchmark::DoNotOptimize(readRoom(files, path).LetztesObjekt);
}
BENCHMARK(openRoomOf10)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zentrox
