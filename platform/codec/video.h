// A video that plays: its pictures by the clock of its sound.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/machine/decoder.h"
#include "platform/picture/bitmap.h"

namespace zentrox {

class VideoPlayer {
public:
    // `clock` tells the milliseconds since the start. `length` is that of the whole, also in milliseconds.
    VideoPlayer(std::unique_ptr<VideoReader> reader, std::int64_t length, std::function<std::int64_t()> clock)
        : reader_(std::move(reader)),
          length_(length),
          clock_(std::move(clock)) {}

    std::int64_t length() const { return length_; }
    // Never goes back. It is the length when that is over, or when the pictures have ended and `silent` says that
    // there is no sound to wait for.
    std::int64_t position(bool silent);
    // The picture to be seen now, if it is another one than at the last call; else null.
    const Bitmap* frame();

private:
    std::unique_ptr<VideoReader> reader_;
    std::int64_t length_;
    std::function<std::int64_t()> clock_;
    std::int64_t position_ = 0;
    Bitmap picture_{Size{videoWidth, videoHeight}};
};

}  // namespace zentrox
