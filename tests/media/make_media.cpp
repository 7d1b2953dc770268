#include "tests/media/make_media.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

#include "platform/values/bytes.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace zentrox::test {

namespace {

double sampleAt(const Tone& tone, std::int64_t index) {
    return tone.level * std::sin(2 * std::numbers::pi * tone.hertz * static_cast<double>(index) / tone.rate);
}

void need(bool works, const char* what) {
    if (!works) throw std::runtime_error(std::string("can't encode: ") + what);
}

// One stream of a file that is written.
struct Track {
    AVCodecContext* codec = nullptr;
    AVStream* stream = nullptr;
    AVFrame* frame = av_frame_alloc();
    std::int64_t next = 0;  // in units of the codec's time base

    ~Track() {
        avcodec_free_context(&codec);
        av_frame_free(&frame);
    }
    double time() const { return static_cast<double>(next) * av_q2d(codec->time_base); }
};

class Writer {
public:
    explicit Writer(const std::filesystem::path& file) {
        av_log_set_level(AV_LOG_QUIET);
        need(avformat_alloc_output_context2(&format_, nullptr, nullptr, file.c_str()) >= 0, file.c_str());
        need(avio_open(&format_->pb, file.c_str(), AVIO_FLAG_WRITE) >= 0, "file");
    }
    ~Writer() {
        avio_closep(&format_->pb);
        avformat_free_context(format_);
        av_log_set_level(logLevel_);
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    AVCodecID soundCodec() const { return format_->oformat->audio_codec; }

    void add(Track& track, const AVCodec* codec, AVRational base) {
        need(codec != nullptr, "no encoder");
        track.codec = avcodec_alloc_context3(codec);
        track.codec->time_base = base;
        track.stream = avformat_new_stream(format_, nullptr);
        track.stream->time_base = base;
        if ((format_->oformat->flags & AVFMT_GLOBALHEADER) != 0) track.codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    }
    static void open(Track& track) {
        need(avcodec_open2(track.codec, track.codec->codec, nullptr) == 0, track.codec->codec->name);
        avcodec_parameters_from_context(track.stream->codecpar, track.codec);
    }
    void begin() { need(avformat_write_header(format_, nullptr) >= 0, "header"); }
    // Null ends the stream.
    void put(Track& track, AVFrame* frame) {
        need(avcodec_send_frame(track.codec, frame) >= 0, "frame");
        AVPacket* packet = av_packet_alloc();
        while (avcodec_receive_packet(track.codec, packet) >= 0) {
            if (track.codec->codec_type == AVMEDIA_TYPE_VIDEO) packet->duration = 1;
            av_packet_rescale_ts(packet, track.codec->time_base, track.stream->time_base);
            packet->stream_index = track.stream->index;
            av_interleaved_write_frame(format_, packet);
        }
        av_packet_free(&packet);
    }
    void end() { av_write_trailer(format_); }

private:
    AVFormatContext* format_ = nullptr;
    int logLevel_ = av_log_get_level();
};

// What a codec takes, with an end of its own; null for anything. Newer libraries are to be asked for it.
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(61, 13, 100)
const void* listOf(const AVCodec& codec, AVCodecConfig what) {
    const void* list = nullptr;
    return avcodec_get_supported_config(nullptr, &codec, what, 0, &list, nullptr) < 0 ? nullptr : list;
}
const AVSampleFormat* sampleFormatsOf(const AVCodec& codec) {
    return static_cast<const AVSampleFormat*>(listOf(codec, AV_CODEC_CONFIG_SAMPLE_FORMAT));
}
const AVPixelFormat* pixelFormatsOf(const AVCodec& codec) {
    return static_cast<const AVPixelFormat*>(listOf(codec, AV_CODEC_CONFIG_PIX_FORMAT));
}
#else
const AVSampleFormat* sampleFormatsOf(const AVCodec& codec) {
    return codec.sample_fmts;
}
const AVPixelFormat* pixelFormatsOf(const AVCodec& codec) {
    return codec.pix_fmts;
}
#endif

AVSampleFormat usableFormat(const AVCodec& codec) {
    const AVSampleFormat* format = sampleFormatsOf(codec);
    for (; format != nullptr && *format != AV_SAMPLE_FMT_NONE; ++format) {
        const auto packed = av_get_packed_sample_fmt(*format);
        if (packed == AV_SAMPLE_FMT_FLT || packed == AV_SAMPLE_FMT_S16) return *format;
    }
    throw std::runtime_error("can't encode: sample format");
}

void openTone(Writer& writer, Track& track, const Tone& tone, AVCodecID id) {
    const AVCodec* codec = avcodec_find_encoder(id);
    writer.add(track, codec, {1, tone.rate});
    track.codec->sample_rate = tone.rate;
    track.codec->sample_fmt = usableFormat(*codec);
    track.codec->bit_rate = 128'000;
    av_channel_layout_default(&track.codec->ch_layout, tone.channels);
    Writer::open(track);
    track.frame->nb_samples = track.codec->frame_size > 0 ? track.codec->frame_size : 1024;
    track.frame->format = track.codec->sample_fmt;
    track.frame->sample_rate = tone.rate;
    av_channel_layout_copy(&track.frame->ch_layout, &track.codec->ch_layout);
    av_frame_get_buffer(track.frame, 0);
}

void setSample(AVFrame& frame, int index, int channel, double value) {
    const auto format = static_cast<AVSampleFormat>(frame.format);
    const bool planar = av_sample_fmt_is_planar(format) != 0;
    auto* plane = frame.extended_data[planar ? channel : 0];
    const int at = planar ? index : index * frame.ch_layout.nb_channels + channel;
    if (av_get_packed_sample_fmt(format) == AV_SAMPLE_FMT_FLT)
        reinterpret_cast<float*>(plane)[at] = static_cast<float>(value);
    else
        reinterpret_cast<std::int16_t*>(plane)[at] = static_cast<std::int16_t>(value * 32767);
}

void putTone(Writer& writer, Track& track, const Tone& tone) {
    av_frame_make_writable(track.frame);
    for (int i = 0; i < track.frame->nb_samples; ++i)
        for (int channel = 0; channel < tone.channels; ++channel)
            setSample(*track.frame, i, channel, sampleAt(tone, track.next + i));
    track.frame->pts = track.next;
    track.next += track.frame->nb_samples;
    writer.put(track, track.frame);
}

void openPictures(Writer& writer, Track& track, const Clip& clip) {
    const AVCodec* codec = avcodec_find_encoder_by_name(clip.codec);
    writer.add(track, codec, {1, clip.rate});
    track.codec->width = clip.width;
    track.codec->height = clip.height;
    const AVPixelFormat* formats = pixelFormatsOf(*codec);
    track.codec->pix_fmt = formats != nullptr ? *formats : AV_PIX_FMT_YUV420P;
    track.codec->framerate = {clip.rate, 1};
    track.stream->avg_frame_rate = track.codec->framerate;
    track.codec->gop_size = 12;
    track.codec->bit_rate = 1'500'000;
    Writer::open(track);
    track.frame->format = track.codec->pix_fmt;
    track.frame->width = clip.width;
    track.frame->height = clip.height;
    av_frame_get_buffer(track.frame, 0);
}

int valueAt(const Clip& clip, int picture, int x, int y) {
    if (!clip.detailed) return greyOf(picture);
    return ((x + 3 * picture) ^ (y + picture)) & 0xFF;
}

void putPicture(Writer& writer, Track& track, const Clip& clip) {
    av_frame_make_writable(track.frame);
    const auto picture = static_cast<int>(track.next);
    const bool rgb = track.codec->pix_fmt == AV_PIX_FMT_RGB24;
    const bool full = rgb || track.codec->pix_fmt == AV_PIX_FMT_YUVJ420P;
    for (int y = 0; y < clip.height; ++y) {
        auto* row = track.frame->data[0] + y * track.frame->linesize[0];
        for (int i = 0; i < clip.width * (rgb ? 3 : 1); ++i) {
            const int grey = valueAt(clip, picture, rgb ? i / 3 : i, y);
            row[i] = static_cast<std::uint8_t>(full ? grey : 16 + grey * 219 / 255);
        }
    }
    for (int plane = 1; !rgb && plane < 3; ++plane)
        for (int y = 0; y < clip.height / 2; ++y)
            std::fill_n(track.frame->data[plane] + y * track.frame->linesize[plane], clip.width / 2,
                        std::uint8_t{128});
    track.frame->pts = track.next++;
    writer.put(track, track.frame);
}

}  // namespace

std::string wavFile(const Tone& tone) {
    std::string data;
    const auto frames = static_cast<std::int64_t>(tone.seconds * tone.rate);
    for (std::int64_t i = 0; i < frames; ++i)
        for (int channel = 0; channel < tone.channels; ++channel) {
            const double value = sampleAt(tone, i);
            data += tone.bits == 8 ? little(static_cast<std::uint32_t>(128 + value * 127), 1)
                                   : little(static_cast<std::uint32_t>(static_cast<int>(value * 32767)), 2);
        }
    const auto block = static_cast<std::uint32_t>(tone.channels * tone.bits / 8);
    const auto rate = static_cast<std::uint32_t>(tone.rate);
    return "RIFF" + little(static_cast<std::uint32_t>(data.size()) + 36, 4) + "WAVEfmt " + little(16, 4) +
           little(1, 2) + little(static_cast<std::uint32_t>(tone.channels), 2) + little(rate, 4) +
           little(rate * block, 4) + little(block, 2) + little(static_cast<std::uint32_t>(tone.bits), 2) + "data" +
           little(static_cast<std::uint32_t>(data.size()), 4) + data;
}

std::string midiFile(const Melody& melody) {
    constexpr std::uint32_t quarter = 96;
    const auto length = static_cast<std::uint32_t>(melody.quarters) * quarter;
    std::string track = std::string("\0\xFF\x51\x03", 4) + big(static_cast<std::uint32_t>(melody.tempo), 3);
    track += std::string("\0\xC0\x10", 3);  // drawbar organ: a steady tone
    track += std::string("\0\x90", 2) + static_cast<char>(melody.note) + '\x7F';
    track += static_cast<char>(0x80U | (length >> 7U & 0x7FU));
    track += static_cast<char>(length & 0x7FU);
    track += '\x80' + std::string(1, static_cast<char>(melody.note)) + '\0';
    track += std::string("\0\xFF\x2F\0", 4);
    return "MThd" + big(6, 4) + big(0, 2) + big(1, 2) + big(quarter, 2) + "MTrk" +
           big(static_cast<std::uint32_t>(track.size()), 4) + track;
}

int greyOf(int picture) {
    return 20 + picture * 37 % 216;
}

void encodeTone(const std::filesystem::path& file, const Tone& tone) {
    Writer writer(file);
    Track track;
    openTone(writer, track, tone, writer.soundCodec());
    writer.begin();
    while (track.time() < tone.seconds) putTone(writer, track, tone);
    writer.put(track, nullptr);
    writer.end();
}

void encodeClip(const std::filesystem::path& file, const Clip& clip) {
    Writer writer(file);
    Track pictures;
    Track sound;
    const Tone tone{.hertz = clip.hertz, .seconds = clip.seconds};
    const bool silent = clip.hertz <= 0;
    openPictures(writer, pictures, clip);
    if (!silent) openTone(writer, sound, tone, writer.soundCodec());
    writer.begin();
    while (pictures.time() < clip.seconds) {
        putPicture(writer, pictures, clip);
        while (!silent && sound.time() < pictures.time()) putTone(writer, sound, tone);
    }
    writer.put(pictures, nullptr);
    if (!silent) writer.put(sound, nullptr);
    writer.end();
}

}  // namespace zentrox::test
