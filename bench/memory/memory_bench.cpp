// A frame of the card flight with the picture of the window that it makes, and how long a match is for Tirsa.
#include <benchmark/benchmark.h>

#include "games/memory/memoryfenster.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

Memorybilder pictures() {
    Memorybilder all;
    all.rücken = Bitmap({97, 97}, white);
    all.gesichter.fill(Bitmap({97, 97}, white));
    return all;
}

// `range` tells how far the cards have shrunk, as the side of a card.
void flightFrame(benchmark::State& state) {
    test::Stage stage;
    Zustand z;
    Memory window(stage.platform, z, pictures());
    window.compose();
    const Bitmap face = pictures().gesichter[0];
    Image one(&window.root(), {0, 0, 97, 97}, true);
    Image two(&window.root(), {208, 104, 97, 97}, true);
    const int side = static_cast<int>(state.range(0));
    int step = 0;
    for (auto _ : state) {
        ++step;
        const Bitmap small = verkleinert(face, {side, side});
        for (Image* const card : {&one, &two}) {
            card->setArea({step % 100, step % 300, side, side});
            card->setPicture(small);
        }
        benchmark::DoNotOptimize(window.compose());
    }
}
BENCHMARK(flightFrame)->Arg(97)->Arg(56)->Arg(16);

void tirsaAlone(benchmark::State& state) {
    Random chance(1);
    Memoryspiel game;
    for (auto _ : state) {
        game.Init(chance);
        while (!game.zuEnde()) {
            const Memoryspiel::Zug turn = game.gegnerZug(chance);
            if (game.gleich(turn.a, turn.b))
                game.gewonnen(turn, Wer::gegner);
            else
                game.AddIntelligenz(turn.a, turn.b);
        }
    }
}
BENCHMARK(tirsaAlone);

}  // namespace
}  // namespace zentrox
