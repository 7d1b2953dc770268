// The loadable part of the program: all that uses FFmpeg's libraries.
#include <algorithm>

#include "platform/codec/ffmpeg/input.h"
#include "platform/codec/ffmpeg/readers.h"
#include "platform/values/limits.h"

namespace zentrox::ffmpeg {

namespace {

// The length of a file that can be opened for playing; 0 else. Sound that lasts longer than the pictures counts.
std::int64_t length(const OpenFile& file, AVMediaType type) {
    const auto input = Input::open(file, type);
    return input ? input->countedLength() : 0;
}

class Decoder final : public FileDecoder {
public:
    Decoder() {
        av_log_set_level(AV_LOG_QUIET);
        av_max_alloc(limits::filmPiece);
    }

    std::unique_ptr<AudioReader> openAudio(const OpenFile& file) override { return ffmpeg::openAudio(file); }
    std::unique_ptr<VideoReader> openVideo(const OpenFile& file) override { return ffmpeg::openVideo(file); }
    std::int64_t audioLength(const OpenFile& file) override {
        return openAudio(file) ? length(file, AVMEDIA_TYPE_AUDIO) : 0;
    }
    std::int64_t videoLength(const OpenFile& file) override {
        return openVideo(file) ? std::max(length(file, AVMEDIA_TYPE_VIDEO), length(file, AVMEDIA_TYPE_AUDIO)) : 0;
    }
};

}  // namespace

}  // namespace zentrox::ffmpeg

extern "C" [[gnu::visibility("default")]] zentrox::FileDecoder* zentroxFileDecoder() {
    static zentrox::ffmpeg::Decoder decoder;
    return &decoder;
}
