// What a tick costs with everything on the field, and how long a thousand matches take.
#include <benchmark/benchmark.h>

#include "games/pong/pongbild.h"
#include "tests/pong/pong_table.h"
#include "tests/support/fake_fonts.h"

namespace zentrox {
namespace {

struct Field {
    test::FakeFonts fonts;
    Surface surface{fonts, {641, 449}};
    Pongbild view;
    test::Table table{&view};

    static Pongbilder pictures() {
        const auto plain = [](int w, int h) { return Bitmap({w, h}, white); };
        return {.Image1 = {plain(10, 10), plain(10, 10), plain(10, 10), plain(10, 10)},
                .Image4 = plain(14, 100),
                .Image5 = plain(14, 100),
                .Image7 = {plain(10, 10), plain(10, 10)},
                .Image8 = plain(300, 50),
                .Image9 = plain(300, 50)};
    }
    Field() : view(surface, pictures()) { table.start(); }
};

// Both paddles move, the ball has its trail and meets a wall, and a hit sprays its sparks.
void fullTick(benchmark::State& state) {
    Field f;
    f.table.serve();
    f.table.held = {key::up};
    for (int i = 0; i < 8; ++i) f.table.tick();
    Pongspiel full = f.table.s();
    full.ballX = 200;
    full.ballY = -2;
    full.ballDX = -5;
    Pongspiel hit = full;
    hit.ballX = 597;
    hit.ballY = hit.spielerY;
    hit.ballDX = 5;
    for (auto _ : state) {
        f.table.game = hit;
        f.table.play();
        for (int i = 1; i < 20; ++i) {
            f.table.game = full;
            f.table.play();
        }
        f.table.heard.clear();
    }
    state.SetItemsProcessed(20 * state.iterations());
}
BENCHMARK(fullTick);

void drop(benchmark::State& state) {
    Field f;
    const Pongspiel serving = f.table.s();
    for (auto _ : state) {
        f.table.game = serving;
        f.table.drop();
    }
}
BENCHMARK(drop);

void endPicture(benchmark::State& state) {
    Field f;
    f.table.serve();
    f.table.play();
    for (auto _ : state) f.view.Endbild(Seite::rechts);
}
BENCHMARK(endPicture);

// Each match is played by another reach of the same player, without a surface.
void thousandMatches(benchmark::State& state) {
    for (auto _ : state) {
        std::int64_t ticks = 0;
        int won = 0;
        for (int match = 0; match < 1000; ++match) {
            test::Table table;
            const test::Swinger player{20 + match % 80};
            for (int i = 0; i < 60'000 && !table.s().spielEnde; ++i, ++ticks) {
                player.hold(table);
                table.tick();
            }
            won += table.s().gesiegt ? 1 : 0;
        }
        state.counters["ticks"] = static_cast<double>(ticks);
        state.counters["won"] = won;
    }
}
BENCHMARK(thousandMatches)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
}  // namespace zentrox
