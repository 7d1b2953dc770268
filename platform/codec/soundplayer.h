// Voice, effect, song and video, decoded and mixed; what is heard of it goes to an output.
#pragma once

#include <functional>
#include <memory>

#include "platform/machine/files.h"
#include "platform/machine/sound.h"

namespace zentrox {

// Where mixed sound goes: a device of the machine, or a test.
class SoundOutput {
public:
    // Writes that many frames of 44,100 a second; a frame is a left and a right sample of 16 bits.
    using Source = std::function<void(std::int16_t* samples, int frames)>;
    enum class Opened { yes, refused, none };  // `refused`: there is a device, but it is not to be had

    virtual ~SoundOutput() = default;
    // The source is asked from now on, maybe in another thread.
    virtual Opened open(Source source) = 0;
    // The source is not asked any more when this returns.
    virtual void close() = 0;
    // While it is paused the source is not asked; not even once more when this returns.
    virtual void setPaused(bool /*paused*/) {}
};

// `clock` tells milliseconds and never goes back. Without an output all is silent without a complaint.
std::unique_ptr<SoundDevice> soundPlayer(const Files& files, std::unique_ptr<SoundOutput> output,
                                         std::function<std::int64_t()> clock);

}  // namespace zentrox
