// What a frame of the fireball and of the flicker costs, drawn and composed as the window shows it.
#include <benchmark/benchmark.h>

#include "games/fight/kampfbild.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

struct FightStage : test::Stage {
    Window window{platform, "Bench", "", {640, 460}, Frame::none};
    Surface surface{fonts, &window.root(), {0, 0, 641, 425}};
    Kampfbild picture{surface};

    void compose() { benchmark::DoNotOptimize(window.compose().row(0)[0]); }
};

void ring(benchmark::State& state) {
    FightStage stage;
    int n = 0;
    for (auto _ : state) {
        stage.picture.Ring(n++ % Ringe);
        stage.compose();
    }
}
BENCHMARK(ring)->Unit(benchmark::kMicrosecond);

void beam(benchmark::State& state) {
    FightStage stage;
    int n = 0;
    for (auto _ : state) {
        stage.picture.Strahl(n++ % Strahllänge + 1);
        stage.compose();
    }
}
BENCHMARK(beam)->Unit(benchmark::kMicrosecond);

void flicker(benchmark::State& state) {
    FightStage stage;
    for (auto _ : state) {
        stage.picture.Umkehren();
        stage.compose();
    }
}
BENCHMARK(flicker)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zentrox
