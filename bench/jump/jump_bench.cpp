// What a tick of Jump and of Bruhks costs with everything on the surface, what loading costs, and how fast whole
// games are played without a surface.
#include <benchmark/benchmark.h>

#include "games/bruhks/bruhksbild.h"
#include "games/jump/jumpbild.h"
#include "tests/jump/pictures.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/fake_sound.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

// A window with the surface of a game, so that a tick can be composed as it is for a display.
struct Scene {
    test::Stage stage;
    Window window;
    Surface field;

    explicit Scene(Size size)
        : window(stage.platform, "Bench", "", size, Frame::thin),
          field(stage.fonts, &window.root(), {{0, 0}, size}) {
        test::writeJumpPictures(stage.directory);
    }
    Text pictures() const { return stage.platform.files.programDirectory() + "games\\"; }
};

// All slots below `count` in flight, spread over the surface.
void keepFlying(Funken& sparks, Random& chance, int count, Size size) {
    if (sparks.PartikelMax() < count - 1)
        sparks.Addpartikel(chance, count, 0, 0, static_cast<float>(size.w), static_cast<float>(size.h), false);
    for (int i = 0; i < count; ++i) {
        sparks[i].Leben = 100;
        sparks[i].VX = sparks[i].VY = 0;
    }
}

// The twelve enemies stand side by side in the view, 200 sparks over them, and the view moves by three pixels.
void jumpTick(benchmark::State& state) {
    Scene scene(Jumpfeld);
    Jumpbild view(scene.field, Grafikladen(scene.stage.platform.files, scene.pictures()));
    Random chance(1);
    Jumpspiel game;
    view.Hintergrundaufbau(game);
    keepFlying(game.Funken, chance, 200, Jumpfeld);
    const Tasten keys{};
    int way = 3;
    for (auto _ : state) {
        view.Entfernen(game);
        Jumptick tick = game.Tick(keys, chance);
        if (game.Sicht.ScrollX > 7000) way = -3;
        if (game.Sicht.ScrollX < 100) way = 3;
        game.Sicht.Scroll(way, tick.Schritte);
        float x = game.Sicht.ScrollX;
        for (Gegner& g : game.Gegner) {
            g.X = x += 45;
            g.Y = 200;
            g.Hub = 0;
            g.Lebt = g.Sichtbar = true;
        }
        game.SpielerX = game.Sicht.ScrollX + 200;
        game.SpielerY = 100;
        game.TotZaehler = 0;
        keepFlying(game.Funken, chance, 200, Jumpfeld);
        view.Zeichnen(game, tick);
        if (state.range(0) != 0) benchmark::DoNotOptimize(scene.window.compose().row(0));
    }
    state.SetLabel(state.range(0) != 0 ? "composed for the display" : "on its surface");
}
BENCHMARK(jumpTick)->DenseRange(0, 1)->Unit(benchmark::kMicrosecond);

void jumpLoading(benchmark::State& state) {
    Scene scene(Jumpfeld);
    for (auto _ : state) benchmark::DoNotOptimize(Grafikladen(scene.stage.platform.files, scene.pictures()).row(0));
}
BENCHMARK(jumpLoading)->Unit(benchmark::kMillisecond);

// Runs right and jumps all the time, until it dies or 3000 ticks have passed.
void jumpGamesWithoutSurface(benchmark::State& state) {
    std::int64_t ticks = 0;
    for (auto _ : state) {
        Random chance(static_cast<std::uint64_t>(state.iterations()));
        Jumpspiel game;
        Tasten keys{};
        for (int i = 0; i < 3000 && game.Ende == 0; ++i, ++ticks) {
            keys[39] = chance.below(8) == 0 ? 0 : 128;
            keys[32] = i % 4 == 0 ? 0 : 128;
            game.Tick(keys, chance);
        }
    }
    state.SetItemsProcessed(ticks);
}
BENCHMARK(jumpGamesWithoutSurface)->Unit(benchmark::kMicrosecond);

struct Hunt {
    static constexpr Size size{645, 445};
    Scene scene{size};
    Bruhksbild view{scene.field};
    Random chance{1};
    Bruhksspiel game{chance, 3.14159274F, size, view.Frame()};
};

// 21 creatures and 500 sparks.
void bruhksTick(benchmark::State& state) {
    Hunt hunt;
    for (auto _ : state) {
        keepFlying(hunt.game.Funken, hunt.chance, 500, Hunt::size);
        hunt.view.Entfernen(hunt.game);
        hunt.game.Tick(hunt.chance);
        hunt.view.Zeichnen(hunt.game);
        if (state.range(0) != 0) benchmark::DoNotOptimize(hunt.scene.window.compose().row(0));
    }
    state.SetLabel(state.range(0) != 0 ? "composed for the display" : "on its surface");
}
BENCHMARK(bruhksTick)->DenseRange(0, 1)->Unit(benchmark::kMicrosecond);

// The 64 copies of its text and a burst of sparks.
void bruhksCelebration(benchmark::State& state) {
    Hunt hunt;
    hunt.game.SiegBeginn(hunt.view.Textmitte());
    for (auto _ : state) {
        keepFlying(hunt.game.Funken, hunt.chance, 250, Hunt::size);
        hunt.view.Entfernen(hunt.game);
        hunt.game.Tick(hunt.chance);
        hunt.view.Zeichnen(hunt.game);
    }
}
BENCHMARK(bruhksCelebration)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zentrox
