// What a pointer move and a frame of the room's animations cost.
#include <benchmark/benchmark.h>

#include <fstream>

#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "room/form1.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

constexpr int objects = 100;

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

// A room of 100 objects, each a strip of the mask; `pointer` is what they show. The last one lies under (320, 475).
std::string roomOf(const std::string& pointer) {
    std::string room = "\"\",-1," + std::to_string(objects - 1) + "\r\n";
    for (int i = 0; i < objects; ++i) {
        room += "0,-1,0,-1,0,-1,\"" + pointer + "\",1,\"Ding\"\r\n";
        for (int cell = 0; cell < Maskenspalten * Maskenzeilen; ++cell)
            room += cell % Maskenzeilen == (i == objects - 1 ? Maskenzeilen - 1 : i % (Maskenzeilen - 1)) ? "255,"
                                                                                                          : "0,";
    }
    return room + "-1\r\n";
}

// An icon of 32 by 32 pixels, 1 bit deep.
std::string icon() {
    std::string bytes("\0\0\1\0\1\0\x20\x20\2\0\1\0\1\0\x30\1\0\0\x16\0\0\0", 22);
    bytes += std::string("\x28\0\0\0\x20\0\0\0\x40\0\0\0\1\0\1\0\0\0\0\0\0\1\0\0", 24) + std::string(16, '\0');
    return bytes + std::string(8, '\x7F') + std::string(256, '\x55');
}

struct RoomStage : test::Stage {
    explicit RoomStage(const std::string& pointer) {
        writeFile(directory.path() / "rooms" / "Start.lsd", roomOf(pointer));
        for (const char* const name :
             {"taste1", "taste2", "ge2", "werfen", "hand1", "hand2", "hand3", "hand4", "hand5"})
            writeFile(directory.path() / "cursors" / (std::string(name) + ".ico"), icon());
        backend.then(
            [this] { form.emplace(platform, zustand, medien, spiele, "Start.lsd", niemand, speicherwart); });
        platform.queue.yield("bench");
        // The room window's start serves the queue for ever; its end comes from inside.
        Timer end(platform.queue, 2000, true, [] { Queue::endProgram(); });
        try {
            form->Zeigen();
        } catch (const ProgramEnd&) {
        }
    }

    Zustand zustand;
    Medien medien{platform, zustand};
    Spieltabelle spiele;
    Beobachter niemand;
    Speicherwart speicherwart;
    std::optional<Form1> form;
};

void move(benchmark::State& state, const std::string& pointer) {
    RoomStage stage(pointer);
    int x = 0;
    for (auto _ : state) stage.form->routing().move({300 + (x++ & 31), 476}, Button::none);
}

void moveWithoutLookups(benchmark::State& state) {
    move(state, "");
}
BENCHMARK(moveWithoutLookups)->Unit(benchmark::kMicrosecond);

void moveWithLookups(benchmark::State& state) {
    move(state, "hand1.ico");
}
BENCHMARK(moveWithLookups)->Unit(benchmark::kMicrosecond);

// The whole animation on a clock that costs nothing, its picture composed at every frame; a frame is its share.
void frames(benchmark::State& state, int count, const std::function<void(Form1&)>& animation) {
    RoomStage stage("");
    std::int64_t shown = 0;
    stage.backend.onPresent = [&] {
        benchmark::DoNotOptimize(stage.form->compose().row(0)[0]);
        ++shown;
    };
    for (auto _ : state) animation(*stage.form);
    state.counters["us_per_frame"] = benchmark::Counter(static_cast<double>(state.iterations()) * count / 1e6,
                                                        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["shown"] = static_cast<double>(shown) / static_cast<double>(state.iterations());
}

void barSlide(benchmark::State& state) {
    frames(state, 19 + 22, [](Form1& form) {
        form.ZeigeLeiste();
        form.VersteckeLeiste();
    });
}
BENCHMARK(barSlide)->Unit(benchmark::kMillisecond);

void textBand(benchmark::State& state) {
    frames(state, 16 + 16, [](Form1& form) {
        form.ZeigText("Ein Text#in drei Zeilen,#wie sie vorkommen.");
        form.WegText("Ein Text#in drei Zeilen,#wie sie vorkommen.");
    });
}
BENCHMARK(textBand)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zentrox
