// How soon a sound is heard after its command. The output goes to a file of samples at the pace of a real device.
#include <benchmark/benchmark.h>

#include <algorithm>

#include "tests/media/make_media.h"
#include "tests/media/speaker.h"

namespace zentrox::test {
namespace {

constexpr double bufferMilliseconds = 512 / 44.1;
constexpr int commands = 20;

double since(std::chrono::steady_clock::time_point begin) {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

struct Sound {
    std::function<void(SoundDevice&)> start;
    std::function<void(SoundDevice&)> stop;
};

// Milliseconds from each command to the moment when the device takes the first sample of its sound. A song of
// silence behind a click is the clock: its position tells at the command how much the device has taken, and the
// file tells where the sound then stands. The buffer that is under way is counted as whole.
std::vector<double> delays(Speaker& speaker, const Sound& sound) {
    auto click = wavFile({.hertz = 0, .seconds = 20});
    click[100] = 0x40;
    speaker.directory.write("clock.wav", click);
    auto& device = *speaker.device;
    device.init();
    device.playSong("clock.wav");
    std::vector<std::int64_t> given;
    std::vector<double> calls;
    for (int i = 0; i < commands; ++i) {
        wait(200 + 7 * i);
        sound.stop(device);
        wait(150);
        const auto before = device.songPosition();
        while (device.songPosition() == before) {
        }
        given.push_back(device.songPosition());
        const auto begin = std::chrono::steady_clock::now();
        sound.start(device);
        calls.push_back(since(begin));
    }
    wait(300);

    const auto heard = speaker.heard();
    std::vector<double> starts;  // milliseconds in the file
    double last = -1000;
    for (std::size_t i = 0; i < heard.size(); ++i) {
        if (heard[i] == 0) continue;
        const double at = static_cast<double>(i) / 44.1;
        if (at - last > 50) starts.push_back(at);
        last = at;
    }
    std::vector<double> delays;
    for (std::size_t i = 0; i < given.size() && i + 1 < starts.size(); ++i)
        delays.push_back(starts[i + 1] - starts[0] - static_cast<double>(given[i]) + bufferMilliseconds + calls[i]);
    return delays;
}

void report(benchmark::State& state, std::vector<double> delays) {
    if (delays.size() != commands) state.SkipWithError("a sound was not heard");
    std::sort(delays.begin(), delays.end());
    double sum = 0;
    for (const double delay : delays) sum += delay;
    state.counters["mean_ms"] = sum / commands;
    state.counters["worst_ms"] = delays.empty() ? 0 : delays.back();
}

constexpr Tone longTone{.hertz = 1000, .seconds = 120};

void voice(benchmark::State& state, const char* name) {
    for (auto _ : state) {
        Speaker speaker;
        encodeTone(speaker.directory.path() / "long.mp3", longTone);
        speaker.directory.write("long.wav", wavFile(longTone));
        SoundHandle handle = 0;
        report(state, delays(speaker, {[&](SoundDevice& device) {
                                           handle = device.openVoice(name);
                                           device.playVoice(handle);
                                       },
                                       [&](SoundDevice& device) { device.freeVoice(handle); }}));
    }
}

void effect(benchmark::State& state) {
    for (auto _ : state) {
        Speaker speaker;
        speaker.directory.write("short.wav", wavFile({.seconds = 2, .rate = 22050, .channels = 1, .bits = 8}));
        report(state, delays(speaker, {[](SoundDevice& device) { device.playEffect("short.wav"); },
                                       [](SoundDevice& device) { device.playEffect("missing.wav"); }}));
    }
}

BENCHMARK_CAPTURE(voice, two_minutes_mp3, "long.mp3")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(voice, two_minutes_wav, "long.wav")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(effect)->Iterations(1)->Unit(benchmark::kMillisecond);

// The call that starts a song, the first one of a device and the next one.
void song(benchmark::State& state, const char* name) {
    for (auto _ : state) {
        Speaker speaker;
        speaker.directory.write("song.mid", midiFile({.quarters = 40}));
        encodeTone(speaker.directory.path() / "song.mp3", longTone);
        speaker.device->init();
        for (const char* which : {"first_ms", "next_ms"}) {
            const auto begin = std::chrono::steady_clock::now();
            speaker.device->playSong(name);
            state.counters[which] = since(begin);
            wait(100);
        }
    }
}

BENCHMARK_CAPTURE(song, midi, "song.mid")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(song, mp3, "song.mp3")->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zentrox::test
