#include <algorithm>
#include <array>
#include <cmath>

#include "platform/codec/ffmpeg/input.h"
#include "platform/codec/ffmpeg/readers.h"
#include "platform/values/limits.h"

extern "C" {
#include <libswscale/swscale.h>
}

namespace zentrox::ffmpeg {

namespace {

struct ScalerCloser {
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};

// Is always one picture ahead of the one that is seen.
class FileVideo final : public VideoReader {
public:
    explicit FileVideo(std::unique_ptr<Input> input)
        : input_(std::move(input)),
          shown_(av_frame_alloc()),
          ahead_(av_frame_alloc()) {}

    // False if not a single picture can be decoded.
    bool begin() {
        if (!shown_ || !ahead_) return false;
        fetch();
        // It is seen at once, also where the sound comes a little before it.
        begins_ = 0;
        return more_;
    }

    std::int64_t length() const override { return input_->headerLength(); }

    bool advance(std::int64_t position, std::uint32_t* pixels) override {
        bool another = false;
        const std::int64_t began = timeOfThread();
        // A film can have any number of pictures for one moment; what is left is for the next call.
        while (more_ && timeOfThread() - began < limits::filmSearch && begins_ <= static_cast<double>(position)) {
            std::swap(shown_, ahead_);
            another = true;
            fetch();
        }
        return another && convert(pixels);
    }

    bool ended(std::int64_t position) const override { return !more_ && static_cast<double>(position) >= end_; }

private:
    void fetch() {
        more_ = input_->next(*ahead_);
        if (!more_) return;
        const auto stamp = ahead_->best_effort_timestamp;
        const double at = stamp == AV_NOPTS_VALUE ? end_ : input_->milliseconds(stamp);
        begins_ = at < begins_ || at > end_ + limits::filmPicture ? end_ : at;
        end_ = begins_ + input_->duration(*ahead_);
    }

    bool convert(std::uint32_t* pixels) {
        const auto format = static_cast<AVPixelFormat>(shown_->format);
        scaler_.reset(sws_getCachedContext(scaler_.release(), shown_->width, shown_->height, format, videoWidth,
                                           videoHeight, AV_PIX_FMT_0RGB32, SWS_BILINEAR, nullptr, nullptr,
                                           nullptr));
        if (!scaler_) return false;
        const std::array<std::uint8_t*, 1> planes{reinterpret_cast<std::uint8_t*>(pixels)};
        const std::array<int, 1> strides{videoWidth * 4};
        if (sws_scale(scaler_.get(), shown_->data, shown_->linesize, 0, shown_->height, planes.data(),
                      strides.data()) <= 0)
            return false;
        // The scaler leaves anything in the unused byte.
        std::for_each_n(pixels, videoWidth * videoHeight, [](std::uint32_t& pixel) { pixel &= 0xFFFFFF; });
        return true;
    }

    std::unique_ptr<Input> input_;
    Owned<AVFrame> shown_;
    Owned<AVFrame> ahead_;
    std::unique_ptr<SwsContext, ScalerCloser> scaler_;
    bool more_ = false;
    double begins_ = 0;  // milliseconds, of the picture ahead
    double end_ = 0;
};

}  // namespace

std::unique_ptr<VideoReader> openVideo(const OpenFile& file) {
    auto input = Input::open(file, AVMEDIA_TYPE_VIDEO);
    if (!input) return nullptr;
    auto reader = std::make_unique<FileVideo>(std::move(input));
    if (!reader->begin()) return nullptr;
    return reader;
}

}  // namespace zentrox::ffmpeg
