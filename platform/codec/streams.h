// The sounds that are mixed as they are decoded, each with a level and a clock of its own. Begun and stopped by the
// game's thread, taken by the thread of the sound device.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/machine/decoder.h"
#include "platform/machine/sound.h"

namespace zentrox {

enum class Track { voice, effect, song, video };

class Streams {
public:
    // `clock` tells milliseconds; it never goes back.
    explicit Streams(std::function<std::int64_t()> clock) : clock_(std::move(clock)) {}

    // Plays a sound in place of the one before. Null is silence that still counts its time.
    void start(Track track, std::unique_ptr<AudioReader> reader);
    void stop(Track track);

    void setVolumes(const Volumes& volumes);

    // True when the reader has come to its end.
    bool ended(Track track) const;
    // Milliseconds since the start that the device has taken.
    std::int64_t taken(Track track) const;
    // Milliseconds since the start that have been heard, which runs evenly between two calls of the device.
    std::int64_t heard(Track track) const;

    // Adds all that plays to `samples`. In the thread of the device.
    void mix(std::int16_t* samples, int frames);

private:
    struct Slot {
        std::unique_ptr<AudioReader> reader;
        bool running = false;
        bool ended = false;
        std::int64_t frames = 0;
        std::int64_t framesBefore = 0;  // without those of the last call
    };
    void add(Slot& slot, int level, std::int16_t* samples, int frames);
    Slot& slot(Track track) { return slots_[static_cast<std::size_t>(track)]; }
    const Slot& slot(Track track) const { return slots_[static_cast<std::size_t>(track)]; }

    mutable std::mutex mutex_;
    std::array<Slot, 4> slots_;
    std::array<int, 4> volumes_{100, 100, 100, 100};  // percent
    std::vector<std::int16_t> decoded_;
    std::function<std::int64_t()> clock_;
    std::int64_t called_ = clock_();  // when the device took something last
    std::int64_t latency_ = 0;        // milliseconds
};

}  // namespace zentrox
