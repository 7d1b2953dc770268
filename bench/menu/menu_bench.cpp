// What one picture of the menu costs. It draws 12.5 of them a second, so that 2.4 ms would be 3 % of a core.
#include <benchmark/benchmark.h>

#include "menu/menu.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

// Lets the menu run on a clock that jumps, with all that it draws put together as for the screen; the time is that
// of one picture, its five ticks included.
void menuPicture(benchmark::State& state) {
    test::TempDirectory directory;
    directory.write("cd/Zentrox", "");
    test::FakeBackend backend;
    test::FakeSound sound(backend);
    const auto fonts = makeFonts();
    Platform platform(backend, *fonts, sound, directory.path());
    Zustand z;
    Menu menu(platform, z, {directory.path() / "cd"}, [] {});
    constexpr Milliseconds picture = 80;
    std::function<void()> next = [&] {
        if (!state.KeepRunning()) return menu.requestClose();
        benchmark::DoNotOptimize(menu.compose().row(0));
        backend.schedule(backend.now + picture, next);
    };
    backend.schedule(1000, next);
    menu.showModal();
}
BENCHMARK(menuPicture)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zentrox
