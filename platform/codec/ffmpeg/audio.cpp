#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "platform/codec/ffmpeg/input.h"
#include "platform/codec/ffmpeg/readers.h"
#include "platform/values/limits.h"

extern "C" {
#include <libswresample/swresample.h>
}

namespace zentrox::ffmpeg {

namespace {

constexpr int channels = 2;

struct ResamplerCloser {
    void operator()(SwrContext* resampler) const { swr_free(&resampler); }
};

class FileAudio final : public AudioReader {
public:
    explicit FileAudio(std::unique_ptr<Input> input) : input_(std::move(input)), frame_(av_frame_alloc()) {}

    // False if not a single frame can be decoded.
    bool begin() {
        if (!frame_ || !input_->next(*frame_)) return false;
        if (frame_->best_effort_timestamp != AV_NOPTS_VALUE)
            delay(input_->milliseconds(frame_->best_effort_timestamp));
        return convert();
    }

    int read(std::int16_t* samples, int frames) override {
        int written = 0;
        while (written < frames && (available() > 0 || refill())) {
            const int count = std::min(frames - written, available());
            const auto from = pending_.begin() + static_cast<std::ptrdiff_t>(taken_) * channels;
            std::copy_n(from, count * channels, samples + written * channels);
            taken_ += count;
            written += count;
        }
        return written;
    }

private:
    int available() const { return static_cast<int>(pending_.size()) / channels - taken_; }

    // Silence before sound that begins later than the file.
    void delay(double milliseconds) {
        const double frames = std::clamp(milliseconds, 0.0, limits::soundDelay) * sampleRate / 1000;
        pending_.assign(static_cast<std::size_t>(frames) * channels, 0);
    }

    bool refill() {
        pending_.clear();
        taken_ = 0;
        while (available() == 0)
            if (!input_->next(*frame_) || !convert()) return false;
        return true;
    }

    // Appends the frame as it is to be heard. A stream may change its form on the way.
    bool convert() {
        if (!prepared()) return false;
        const int most = swr_get_out_samples(resampler_.get(), frame_->nb_samples);
        if (most < 0 || most > limits::soundFrame) return false;
        const std::size_t before = pending_.size();
        pending_.resize(before + static_cast<std::size_t>(most) * channels);
        std::array<std::uint8_t*, 1> out{reinterpret_cast<std::uint8_t*>(pending_.data() + before)};
        const int got = swr_convert(resampler_.get(), out.data(), most,
                                    const_cast<const std::uint8_t**>(frame_->extended_data), frame_->nb_samples);
        pending_.resize(before + static_cast<std::size_t>(std::max(got, 0)) * channels);
        return got >= 0;
    }

    bool prepared() {
        const int count = frame_->ch_layout.nb_channels;
        const bool sound = frame_->sample_rate >= limits::lowestRate && frame_->sample_rate <= limits::highestRate;
        if (!sound || count < 1 || count > limits::channels) return false;
        if (resampler_ && rate_ == frame_->sample_rate && format_ == frame_->format && channels_ == count)
            return true;
        AVChannelLayout in;
        av_channel_layout_default(&in, count);
        AVChannelLayout out = AV_CHANNEL_LAYOUT_STEREO;
        SwrContext* made = nullptr;
        swr_alloc_set_opts2(&made, &out, AV_SAMPLE_FMT_S16, sampleRate, &in,
                            static_cast<AVSampleFormat>(frame_->format), frame_->sample_rate, 0, nullptr);
        resampler_.reset(made);
        rate_ = frame_->sample_rate;
        format_ = frame_->format;
        channels_ = count;
        return resampler_ && swr_init(resampler_.get()) >= 0;
    }

    std::unique_ptr<Input> input_;
    Owned<AVFrame> frame_;
    std::unique_ptr<SwrContext, ResamplerCloser> resampler_;
    int rate_ = 0;
    int format_ = -1;
    int channels_ = 0;
    std::vector<std::int16_t> pending_;
    int taken_ = 0;  // frames of `pending_`
};

}  // namespace

std::unique_ptr<AudioReader> openAudio(const OpenFile& file) {
    auto input = Input::open(file, AVMEDIA_TYPE_AUDIO);
    if (!input) return nullptr;
    auto reader = std::make_unique<FileAudio>(std::move(input));
    if (!reader->begin()) return nullptr;
    return reader;
}

}  // namespace zentrox::ffmpeg
