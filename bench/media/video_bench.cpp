// What a video costs, and how late its pictures come against its sound.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

#include "platform/machine/decoder.h"
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

// When each picture has to be seen, in milliseconds.
std::vector<double> dueTimes(const std::filesystem::path& file) {
    const auto reader = mediaDecoder()->openVideo(file);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    std::vector<double> due;
    for (int position = 0; !reader->ended(position); ++position)
        if (reader->advance(position, pixels.data())) due.push_back(position);
    return due;
}

// Plays in real time, looking for a picture once a frame of the display as the game does.
void video(benchmark::State& state, const char* name, const char* codec) {
    for (auto _ : state) {
        Speaker speaker;
        const auto file = speaker.directory.path() / name;
        encodeClip(file, {.codec = codec, .rate = rate, .seconds = seconds, .detailed = true});
        const auto due = dueTimes(file);
        auto& device = *speaker.device;
        device.init();
        const double before = processorSeconds();
        device.playVideo(name);
        std::vector<double> seen;
        while (device.videoPosition() < device.videoLength()) {
            if (device.videoFrame() != nullptr) seen.push_back(static_cast<double>(device.videoPosition()));
            wait(frame);
        }
        state.counters["cores"] = (processorSeconds() - before) / seconds;
        state.counters["skipped"] = static_cast<double>(due.size() - seen.size());
        double latest = 0;
        for (std::size_t i = 0; i < std::min(seen.size(), due.size()); ++i)
            latest = std::max(latest, seen[i] - due[i]);
        state.counters["latest_ms"] = latest;
    }
}

BENCHMARK_CAPTURE(video, mpeg1, "a.mpg", "mpeg1video")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(video, divx, "a.avi", "mpeg4")->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zentrox::test
