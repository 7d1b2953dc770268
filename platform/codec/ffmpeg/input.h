// One stream of a media file, opened and decoded frame by frame.
#pragma once

#include <cstdint>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include "platform/codec/filedecoder.h"

namespace zentrox::ffmpeg {

struct Closer {
    void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
    void operator()(AVIOContext* bytes) const {
        av_freep(&bytes->buffer);
        avio_context_free(&bytes);
    }
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

template <class T>
using Owned = std::unique_ptr<T, Closer>;

// Milliseconds that this thread has had of the processor; a disc that has to get up speed does not count.
std::int64_t timeOfThread();

class Input {
public:
    // Null if the file has no such stream or nothing that decodes it is there.
    static std::unique_ptr<Input> open(const OpenFile& file, AVMediaType type);

    // The next frame; false at the end. What is broken within the file is left out.
    bool next(AVFrame& frame);
    // Milliseconds from the start of the file, of a time stamp of this stream.
    double milliseconds(std::int64_t stamp) const;
    // Milliseconds that a picture lasts.
    double duration(const AVFrame& frame) const;
    // Milliseconds of the whole file by its header; 0 if that does not say.
    std::int64_t headerLength() const;
    // Reads all that is left without decoding it, and tells when its last packet ends. Nothing can be read after
    // it.
    std::int64_t countedLength();

    const AVStream& stream() const { return *format_->streams[stream_]; }

private:
    explicit Input(OpenFile file) : file_(std::move(file)) {}
    // The file as its reader asks for it.
    int readBytes(std::uint8_t* to, int size);
    std::int64_t seek(std::int64_t to, int from);
    bool openFile();
    bool openCodec(const AVCodec& codec);
    bool feed();
    // The next piece of the file, of whatever stream.
    bool readPiece();
    // A file can hold nothing for gigabytes, or claim to.
    bool impatient() const;
    void found();

    OpenFile file_;
    std::int64_t at_ = 0;  // bytes
    Owned<AVIOContext> bytes_;
    AVFormatContext* reading_ = nullptr;  // also while it is being opened
    std::int64_t foundAt_ = 0;            // bytes
    std::int64_t searchesSince_ = 0;      // milliseconds of this thread
    Owned<AVFormatContext> format_;
    Owned<AVCodecContext> codec_;
    Owned<AVPacket> packet_;
    int stream_ = -1;
    bool drained_ = false;
};

}  // namespace zentrox::ffmpeg
