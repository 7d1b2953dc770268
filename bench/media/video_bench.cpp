// What a video costs, and how late its pictures come against its sound.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

#include "tests/media/make_media.h"
#include "tests/media/speaker.h"

namespace zentrox::test {
namespace {

constexpr double seconds = 8;
constexpr int rate = 25;
constexpr int frame = 16;  // milliseconds, of a display

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// Plays in real time, looking for a picture once a frame of the display as the game does.
void video(benchmark::State& state, const char* name, const char* codec) {
    for (auto _ : state) {
        Speaker speaker;
        encodeClip(speaker.directory.path() / name,
                   {.codec = codec, .rate = rate, .seconds = seconds, .detailed = true});
        auto& device = *speaker.device;
        device.init();
        const double before = processorSeconds();
        device.playVideo(name);
        int pictures = 0;
        double latest = 0;
        double begin = -1;  // of the pictures, against the sound
        while (device.videoPosition() < device.videoLength()) {
            const bool another = device.videoFrame() != nullptr;
            const auto position = static_cast<double>(device.videoPosition());
            if (another && begin < 0) begin = position;
            if (another) latest = std::max(latest, position - begin - pictures++ * 1000.0 / rate);
            wait(frame);
        }
        state.counters["cores"] = (processorSeconds() - before) / seconds;
        state.counters["pictures"] = pictures;
        state.counters["latest_ms"] = latest;
    }
}

BENCHMARK_CAPTURE(video, mpeg1, "a.mpg", "mpeg1video")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(video, divx, "a.avi", "mpeg4")->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zentrox::test
