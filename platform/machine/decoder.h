// Reads sound and video files of any usual format. The libraries behind it are loaded on first use, as they cost
// more time and memory than all the rest of the program.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

namespace zentrox {

constexpr int sampleRate = 44100;  // frames a second of all sound in memory; a frame is a left and a right sample

class AudioReader {
public:
    virtual ~AudioReader() = default;
    // Writes up to `frames` frames and returns how many; fewer only at the end. May be called in the thread of the
    // sound device.
    virtual int read(std::int16_t* samples, int frames) = 0;
};

constexpr int videoWidth = 640;
constexpr int videoHeight = 480;

class VideoReader {
public:
    virtual ~VideoReader() = default;
    // Milliseconds, as the file says; 0 if it does not.
    virtual std::int64_t length() const = 0;
    // Goes on to the picture to be seen at `position`, milliseconds from the start. True if it is another one than
    // before; `pixels` are then overwritten, 640 by 480 of 0x00RRGGBB, whatever size the video has.
    virtual bool advance(std::int64_t position, std::uint32_t* pixels) = 0;
    // True when the last picture has had its time at `position`.
    virtual bool ended(std::int64_t position) const = 0;
};

class MediaDecoder {
public:
    virtual ~MediaDecoder() = default;
    // Null for a file that can't be decoded. A video's own sound is read by a reader of its own.
    virtual std::unique_ptr<AudioReader> openAudio(const std::filesystem::path& file) = 0;
    virtual std::unique_ptr<VideoReader> openVideo(const std::filesystem::path& file) = 0;
    // The true length in milliseconds, counted through the whole file; 0 for one that can't be decoded.
    virtual std::int64_t audioLength(const std::filesystem::path& file) = 0;
    virtual std::int64_t videoLength(const std::filesystem::path& file) = 0;
};

// Null, after a line on standard error, if the libraries are not there.
MediaDecoder* mediaDecoder();

}  // namespace zentrox
