// How fast scripts step through scans and branches, and what a flag test costs when the flags are full.
#include <benchmark/benchmark.h>

#include "engine/interpreter/interpreter.h"
#include "engine/state/merker.h"
#include "media/medien.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/fake_room.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

struct Engine {
    test::TempDirectory directory;
    test::FakeBackend backend;
    test::FakeSound sound{backend};
    test::FakeFonts fonts;
    Platform platform{backend, fonts, sound, directory.path()};
    Zustand z;
    Medien medien{platform, z};
    test::FakeRaumfenster raum;
    Spieltabelle spiele;
    Beobachter niemand;
    Interpreter interpreter{platform, z, medien, raum, spiele, niemand};

    // Runs a script again and again; `steps` instructions are passed in a run, those that a scan walks over
    // included.
    void measure(benchmark::State& state, const Skript& skript, std::int64_t steps) {
        for (auto _ : state) {
            interpreter.SkriptAusführen(skript, -1, "SCHLUESSEL");
            raum.notes.clear();
        }
        state.SetItemsProcessed(steps * state.iterations());
    }
};

void add(Skript& skript, std::int32_t befehl, TextView argument = {}) {
    skript.Befehl.push_back(befehl);
    skript.Argument.emplace_back(argument);
    ++skript.Letzter;
}

constexpr int blocks = 1000;

// One false condition over a long nest of blocks.
void scanOverBlocks(benchmark::State& state) {
    Skript s;
    add(s, "WennParameter"_op, "anderes");
    for (int i = 0; i < blocks; ++i) {
        add(s, "WennParameter"_op, "x");
        add(s, 2, "Text");
        add(s, "Sonst"_op);
        add(s, 3, "M");
        add(s, "EndeWenn"_op);
    }
    add(s, "EndeWenn"_op);
    Engine engine;
    engine.measure(state, s, s.Letzter + 1);
}
BENCHMARK(scanOverBlocks);

// The script of a drop: one condition after the other, each passed over but one, each branch a few instructions
// long.
void branchesOfADrop(benchmark::State& state) {
    Skript s;
    for (int i = 0; i < blocks; ++i) {
        add(s, "WennParameter"_op, i % 8 == 0 ? "Schluessel" : "Seil");
        add(s, "Marke"_op, "a");
        add(s, "Marke"_op, "b");
        add(s, "Sonst"_op);
        add(s, "Marke"_op, "c");
        add(s, "EndeWenn"_op);
    }
    Engine engine;
    engine.measure(state, s, s.Letzter + 1);
}
BENCHMARK(branchesOfADrop);

// The cases of a long choice, walked over from the first one's end.
void scanOverCases(benchmark::State& state) {
    Skript s;
    add(s, "Fall"_op, "1");
    for (int i = 0; i < blocks; ++i) {
        add(s, "Fall"_op, std::to_string(i));
        add(s, "Auswahl"_op, "1|a|b");
        add(s, "Fall"_op, "1");
        add(s, "EndeAuswahl"_op);
    }
    add(s, "EndeAuswahl"_op);
    Engine engine;
    engine.measure(state, s, s.Letzter + 1);
}
BENCHMARK(scanOverCases);

// What a run costs by itself, to be taken off from the others.
void emptyRun(benchmark::State& state) {
    Engine engine;
    engine.measure(state, Skript{}, 1);
}
BENCHMARK(emptyRun);

// All slots in use, and the flag asked for is in none of them. The names: unlike each other, alike in front, alike
// in front and at the end, and too short to be told apart in one step.
void flagTest(benchmark::State& state) {
    const auto names = [&](int i) -> Text {
        const Text number = std::to_string(10000 + i);
        switch (state.range(0)) {
            case 0: return number + "MERKER" + number;
            case 1: return "KELLER_TUER_OFFEN_" + number;
            case 2: return "KELLER_" + number + "_TUER_OFFEN";
            default: return "M" + number;
        }
    };
    auto z = std::make_unique<Zustand>();
    for (int i = 0; i < MerkerAnzahl; ++i) z->Merker[static_cast<std::size_t>(i)] = names(i);
    const Text missing = names(MerkerAnzahl);
    for (auto _ : state) benchmark::DoNotOptimize(MerkerGesetzt(*z, missing));
}
BENCHMARK(flagTest)->DenseRange(0, 3);

}  // namespace
}  // namespace zentrox
