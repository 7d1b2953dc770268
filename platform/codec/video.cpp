#include "platform/codec/video.h"

#include <algorithm>

namespace zentrox {

std::int64_t VideoPlayer::position(bool silent) {
    position_ = std::clamp(clock_(), position_, length_);
    if (silent && reader_->ended(position_)) position_ = length_;
    return position_;
}

const Bitmap* VideoPlayer::frame() {
    position_ = std::clamp(clock_(), position_, length_);
    return reader_->advance(position_, picture_.row(0)) ? &picture_ : nullptr;
}

}  // namespace zentrox
