#include "platform/codec/ffmpeg/input.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <ctime>

#include "platform/values/limits.h"

namespace zentrox::ffmpeg {

namespace {

// Formats that hold sound and video and nothing else: no play lists, which could name other files.
constexpr const char* formats =
    "wav,mp3,ogg,flac,aac,aiff,au,w64,mpeg,mpegvideo,mpegts,avi,mov,mp4,matroska,webm,asf,flv,flic,m4v";
constexpr double usualPicture = 40;  // milliseconds, where the file does not say

double plausible(double lasts) {
    return lasts > 0 && lasts <= limits::filmPicture ? lasts : usualPicture;
}

}  // namespace

std::int64_t timeOfThread() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000;
}

bool Input::impatient() const {
    const AVIOContext* const file = reading_ == nullptr ? nullptr : reading_->pb;
    if (file == nullptr) return false;
    return file->bytes_read - foundAt_ > (format_ ? limits::filmGap : limits::filmOpening) ||
           timeOfThread() - searchesSince_ > limits::filmSearch;
}

bool Input::readPiece() {
    searchesSince_ = timeOfThread();
    return av_read_frame(format_.get(), packet_.get()) >= 0;
}

void Input::found() {
    foundAt_ = reading_->pb->bytes_read;
}

// As FFmpeg reads files itself, but from one that has been opened: a worker can't open any.
int Input::readBytes(std::uint8_t* to, int size) {
    if (impatient()) return AVERROR_EXIT;
    const ssize_t got = pread(file_.file->number(), to, static_cast<std::size_t>(size), at_);
    if (got < 0) return AVERROR(errno);
    if (got == 0) return AVERROR_EOF;
    at_ += got;
    return static_cast<int>(got);
}

std::int64_t Input::seek(std::int64_t to, int from) {
    const bool whole = (from & AVSEEK_SIZE) != 0;
    if (whole || (from & ~AVSEEK_FORCE) == SEEK_END) {
        const off_t end = lseek(file_.file->number(), 0, SEEK_END);
        if (end < 0) return AVERROR(errno);
        if (whole) return end;
        to += end;
    } else if ((from & ~AVSEEK_FORCE) == SEEK_CUR) {
        to += at_;
    }
    if (to < 0) return AVERROR(EINVAL);
    return at_ = to;
}

bool Input::openFile() {
    constexpr int piece = 32'768;  // what FFmpeg takes for a file of the disk
    auto* const buffer = static_cast<std::uint8_t*>(av_malloc(piece));
    bytes_.reset(avio_alloc_context(
        buffer, piece, 0, this,
        [](void* input, std::uint8_t* to, int size) { return static_cast<Input*>(input)->readBytes(to, size); },
        nullptr,
        [](void* input, std::int64_t to, int from) { return static_cast<Input*>(input)->seek(to, from); }));
    AVFormatContext* format = avformat_alloc_context();
    if (buffer == nullptr || !bytes_ || format == nullptr) return false;
    format->pb = bytes_.get();
    reading_ = format;
    searchesSince_ = timeOfThread();
    format->interrupt_callback = {[](void* input) { return static_cast<Input*>(input)->impatient() ? 1 : 0; },
                                  this};
    AVDictionary* options = nullptr;
    av_dict_set(&options, "format_whitelist", formats, 0);
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    // The ending of the name counts where the bytes leave a doubt.
    const int failed = avformat_open_input(&format, ("file:" + file_.name).c_str(), nullptr, &options);
    av_dict_free(&options);
    if (failed != 0) return false;
    const bool known = avformat_find_stream_info(format, nullptr) >= 0;
    format_.reset(format);
    if (!known) return false;
    found();
    return true;
}

std::unique_ptr<Input> Input::open(const OpenFile& file, AVMediaType type) {
    std::unique_ptr<Input> input(new Input(file));
    if (!input->openFile()) return nullptr;
    const AVCodec* codec = nullptr;
    input->stream_ = av_find_best_stream(input->format_.get(), type, -1, -1, &codec, 0);
    if (input->stream_ < 0 || codec == nullptr || !input->openCodec(*codec)) return nullptr;
    for (unsigned i = 0; i < input->format_->nb_streams; ++i)
        if (static_cast<int>(i) != input->stream_) input->format_->streams[i]->discard = AVDISCARD_ALL;
    return input;
}

bool Input::openCodec(const AVCodec& codec) {
    codec_.reset(avcodec_alloc_context3(&codec));
    packet_.reset(av_packet_alloc());
    if (!codec_ || !packet_ || avcodec_parameters_to_context(codec_.get(), stream().codecpar) < 0) return false;
    codec_->thread_count = 1;
    codec_->max_pixels = limits::filmPixels;
    codec_->pkt_timebase = stream().time_base;
    return avcodec_open2(codec_.get(), &codec, nullptr) == 0;
}

bool Input::next(AVFrame& frame) {
    for (;;) {
        const int result = avcodec_receive_frame(codec_.get(), &frame);
        if (result == 0) return found(), true;
        if (result == AVERROR_EOF || !feed()) return false;
    }
}

// Hands a packet to the decoder, and at the end of the file the wish for all that it has held back.
bool Input::feed() {
    while (readPiece()) {
        const bool ours = packet_->stream_index == stream_;
        const bool taken = ours && avcodec_send_packet(codec_.get(), packet_.get()) >= 0;
        av_packet_unref(packet_.get());
        if (taken) return true;
        if (impatient()) break;
    }
    if (drained_) return false;
    drained_ = true;
    return avcodec_send_packet(codec_.get(), nullptr) >= 0;
}

double Input::milliseconds(std::int64_t stamp) const {
    const double start = format_->start_time == AV_NOPTS_VALUE
                             ? 0.0
                             : static_cast<double>(format_->start_time) * 1000 / AV_TIME_BASE;
    return static_cast<double>(stamp) * av_q2d(stream().time_base) * 1000 - start;
}

double Input::duration(const AVFrame& frame) const {
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(57, 30, 100)
    const auto ticks = frame.duration;
#else
    const auto ticks = frame.pkt_duration;
#endif
    return plausible(static_cast<double>(ticks) * av_q2d(stream().time_base) * 1000);
}

std::int64_t Input::headerLength() const {
    if (format_->duration == AV_NOPTS_VALUE || format_->duration < 0) return 0;
    return format_->duration / (AV_TIME_BASE / 1000);
}

std::int64_t Input::countedLength() {
    double end = 0;
    const bool sound = stream().codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
    while (readPiece()) {
        if (packet_->stream_index == stream_) {
            found();
            const double ticks = static_cast<double>(packet_->duration) * av_q2d(stream().time_base) * 1000;
            const double lasts = sound ? ticks : plausible(ticks);
            // Sound has no gaps, and its stamps may be guesses. Not every picture has a stamp.
            const bool stamped = !sound && packet_->pts != AV_NOPTS_VALUE;
            const double stamp = stamped ? milliseconds(packet_->pts) : end;
            const double begins = stamp > end + limits::filmPicture ? end : stamp;
            end = std::max(end, begins + lasts);
        }
        av_packet_unref(packet_.get());
        if (impatient()) break;
        if (avio_tell(format_->pb) > limits::countedBytes)
            return std::max<std::int64_t>(std::llround(end), headerLength());
    }
    return std::llround(end);
}

}  // namespace zentrox::ffmpeg
