// Sound devices that can be measured: one whose output a test pulls, and the desktop's, whose output goes to a
// file.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <numbers>
#include <thread>
#include <vector>

#include "platform/codec/soundplayer.h"
#include "platform/machine/decoder.h"
#include "platform/sdl/sound.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {

// A variable of the environment for the length of a scope.
class Environment {
public:
    Environment(const char* name, const std::string& value) : name_(name) { setenv(name, value.c_str(), 1); }
    ~Environment() { unsetenv(name_); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* name_;
};

inline void wait(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// Of the fonts that may be there the one with steady organs: others have a tremolo that measures like a pause.
constexpr const char* steadyFont = "/usr/share/sounds/sf2/TimGM6mb.sf2";

// The left samples of frames of 16 bits.
inline void append(std::vector<double>& samples, const std::int16_t* frames, int count) {
    for (int i = 0; i < count; ++i) samples.push_back(frames[2 * i] / 32768.0);
}

// Takes sound only while the test lets time pass, in the pieces of a real device.
struct PulledSpeaker {
    TempDirectory directory;
    Environment font{"SDL_SOUNDFONTS", steadyFont};
    std::vector<double> heard;  // left samples

private:
    struct Output final : SoundOutput {
        explicit Output(Source& source) : source_(source) {}
        Opened open(Source source) override {
            source_ = std::move(source);
            return Opened::yes;
        }
        void close() override { source_ = nullptr; }
        Source& source_;
    };
    static constexpr int pieceFrames = 512;
    std::int64_t now() const { return static_cast<std::int64_t>(heard.size()) * 1000 / sampleRate; }
    SoundOutput::Source source_;

public:
    std::unique_ptr<SoundDevice> device =
        soundPlayer(directory.path(), std::make_unique<Output>(source_), [this] { return now(); });

    void play(std::int64_t milliseconds) {
        for (const std::int64_t until = now() + milliseconds; now() < until;) {
            std::int16_t piece[2 * pieceFrames]{};
            if (source_) source_(piece, pieceFrames);
            append(heard, piece, pieceFrames);
        }
    }
};

struct Speaker {
    TempDirectory directory;
    Environment driver{"SDL_AUDIODRIVER", "disk"};
    Environment file{"SDL_DISKAUDIOFILE", (directory.path() / "heard.raw").string()};
    Environment font{"SDL_SOUNDFONTS", steadyFont};
    std::unique_ptr<SoundDevice> device = desktopSound(directory.path());

    // The left samples of all that has been heard; closes the output.
    std::vector<double> heard() {
        device->free();
        std::ifstream raw(directory.path() / "heard.raw", std::ios::binary);
        std::vector<double> samples;
        std::int16_t frame[2];
        while (raw.read(reinterpret_cast<char*>(frame), sizeof frame)) append(samples, frame, 1);
        return samples;
    }
};

// How loud one pitch is from `from` to `to` seconds: the amplitude of its sine, 1 at full scale.
inline double loudness(const std::vector<double>& samples, double hertz, double from, double to) {
    constexpr double rate = 44100;
    const double step = 2 * std::cos(2 * std::numbers::pi * hertz / rate);
    const auto end = std::min(static_cast<std::size_t>(to * rate), samples.size());
    const auto begin = std::min(static_cast<std::size_t>(from * rate), end);
    double last = 0;
    double beforeLast = 0;
    for (std::size_t i = begin; i < end; ++i) {
        const double next = samples[i] + step * last - beforeLast;
        beforeLast = last;
        last = next;
    }
    const double power = last * last + beforeLast * beforeLast - step * last * beforeLast;
    return end > begin ? 2 * std::sqrt(std::max(power, 0.0)) / static_cast<double>(end - begin) : 0;
}

}  // namespace zentrox::test
