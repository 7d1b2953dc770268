// How even the ticks of Jump are in a real window, beside a bare sleep to the same deadlines. Both take turns, so
// that both see the same machine.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <thread>
#include <vector>

#include "engine/state/warten.h"
#include "games/jump/jumpbild.h"
#include "platform/platform.h"
#include "platform/sdl/desktop.h"
#include "tests/jump/pictures.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/fake_sound.h"

namespace zentrox {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int period = 20;
constexpr int ticksPerTurn = 250;
constexpr int turns = 6;

double milliseconds(Clock::duration d) {
    return std::chrono::duration<double, std::milli>(d).count();
}

// The times at which ticks began.
using Beats = std::vector<Clock::time_point>;

struct Pace {
    std::vector<double> off;  // how far each tick was from its period, milliseconds
    double ms = 0;
    int ticks = 0;

    void add(const Beats& beats) {
        for (std::size_t i = 1; i < beats.size(); ++i)
            off.push_back(std::fabs(milliseconds(beats[i] - beats[i - 1]) - period));
        ms += milliseconds(beats.back() - beats.front());
        ticks += static_cast<int>(beats.size()) - 1;
    }
    void print(const char* name) {
        std::sort(off.begin(), off.end());
        const auto at = [&](double part) {
            return off[static_cast<std::size_t>(part * static_cast<double>(off.size() - 1))];
        };
        std::printf("%-16s %d ticks, %.4f ms each; off by %.3f ms at the median, %.3f at the 99th percentile\n",
                    name, ticks, ms / ticks, at(0.5), at(0.99));
    }
};

int run() {
    test::TempDirectory directory;
    test::writeJumpPictures(directory);
    test::FakeBackend silence;
    test::FakeSound sound(silence);
    test::FakeFonts fonts;
    const Files files(directory.path());
    sdl::Desktop desktop(files, {});
    Platform platform(desktop, fonts, sound, directory.path());
    Zustand z;
    Window window(platform, "Jump", "", Jumpfeld, Frame::thin);
    Surface field(fonts, &window.root(), {{0, 0}, Jumpfeld});
    Jumpbild view(field, Grafikladen(platform.files, platform.files.programDirectory() + "games\\"));
    Random chance(1);
    Jumpspiel game;
    view.Hintergrundaufbau(game);
    window.open();
    Tasten keys{};

    const auto tick = [&] {
        TastaturLesen(z, platform);
        view.Entfernen(game);
        keys[39] = game.ErsterTick || chance.below(10) != 0 ? 128 : 0;
        keys[32] = chance.below(3) != 0 ? 128 : 0;
        const Jumptick t = game.Tick(keys, chance);
        game.TotZaehler = 0;
        view.Zeichnen(game, t);
    };
    Pace ours;
    Pace bare;
    for (int turn = 0; turn < turns; ++turn) {
        Beats beats;
        for (int i = 0; i < 3; ++i) WarteFrame(z, platform, period);
        for (int i = 0; i <= ticksPerTurn; ++i) {
            beats.push_back(Clock::now());
            tick();
            WarteFrame(z, platform, period);
        }
        ours.add(beats);
        beats.clear();
        const auto begin = Clock::now();
        for (int i = 0; i <= ticksPerTurn; ++i) {
            std::this_thread::sleep_until(begin + i * std::chrono::milliseconds(period));
            beats.push_back(Clock::now());
            tick();
            platform.queue.present();
        }
        bare.add(beats);
    }
    ours.print("WarteFrame(20)");
    bare.print("bare sleep");
    return 0;
}

}  // namespace
}  // namespace zentrox

int main() {
    return zentrox::run();
}
