// A frame of the circle and the showing of a character, with the picture of the window and real letters; and the
// reckoning of the digits.
#include <benchmark/benchmark.h>

#include "games/pi/pibild.h"
#include "platform/window/window.h"
#include "tests/support/stage.h"
#include "tools/digits/pi.h"

namespace zentrox {
namespace {

constexpr Size area{369, 273};

struct Scene {
    test::Stage stage;
    std::unique_ptr<Fonts> fonts = makeFonts();
    Window window{stage.platform, "PISpiel", "", area, Frame::dialog};
    Surface surface{*fonts, &window.root(), {{0, 0}, area}};
};

void circleFrame(benchmark::State& state) {
    Scene scene;
    scene.window.compose();
    int step = 0;
    for (auto _ : state) {
        scene.surface.setPixel({84 + step % 200, 36 + step % 100}, white);
        ++step;
        benchmark::DoNotOptimize(scene.window.compose());
    }
}
BENCHMARK(circleFrame);

void characterShown(benchmark::State& state) {
    Scene scene;
    Random chance(1);
    PIspiel game{.Zeichen = Text(100, '4')};
    PIbild picture(scene.surface);
    for (auto _ : state) {
        game.anzahl = 59;
        picture.Frage(game.Weiter(chance));
        benchmark::DoNotOptimize(scene.window.compose());
    }
}
BENCHMARK(characterShown);

void tenThousandDigits(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(piCharacters(10'000));
}
BENCHMARK(tenThousandDigits)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zentrox
