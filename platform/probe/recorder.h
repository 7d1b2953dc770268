// A sound and video device that is never heard: it writes down what would be, and when that ends.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/machine/decoder.h"
#include "platform/machine/files.h"
#include "platform/machine/sound.h"
#include "platform/window/backend.h"

namespace zentrox {

class Recorder final : public SoundDevice {
public:
    // `trace` gets each line of what happens and the time of it.
    using Trace = std::function<void(Milliseconds at, const Text& line)>;

    Recorder(Files files, std::function<Milliseconds()> clock, Trace trace)
        : files_(std::move(files)),
          clock_(std::move(clock)),
          trace_(std::move(trace)) {}

    // Tells of all that has come to its end by now, each at its own time. To be called when the clock has moved,
    // before anything else is told.
    void settle();

    // What plays now, as the trace tells it; empty for none.
    Text voice() const { return nameOf(voice_); }
    Text song() const { return nameOf(song_); }

    bool init() override { return started_ = true; }
    bool start() override { return true; }
    SoundError error() const override { return error_; }
    void free() override;
    void setPaused(bool paused) override;

    SoundHandle openVoice(TextView path) override;
    void playVoice(SoundHandle handle) override;
    void freeVoice(SoundHandle handle) override;

    void playEffect(TextView path) override;

    void playSong(TextView path) override;
    void stopSong() override;
    std::int64_t songLength() override { return song_.length; }
    std::int64_t songPosition() override { return position(song_); }

    bool playVideo(TextView path) override;
    void stopVideo() override;
    std::int64_t videoLength() override { return video_.length; }
    std::int64_t videoPosition() override { return position(video_); }
    const Bitmap* videoFrame() override;

private:
    // One that has ended keeps its length until it is stopped, as with any player.
    struct Track {
        std::string kind;
        Text name;
        std::int64_t length = 0;  // milliseconds; 0 is none
        Milliseconds begin = 0;
        bool plays = false;

        Milliseconds end() const { return begin + length; }
    };

    static Text nameOf(const Track& track) { return track.plays ? track.name : Text(); }
    // What a file is; without a length if it is missing or can't be decoded.
    Track open(const std::string& kind, TextView path, std::int64_t (*length)(const std::filesystem::path&)) const;
    void play(Track& track);
    void stop(Track& track);
    std::int64_t position(const Track& track) const;

    Files files_;
    std::function<Milliseconds()> clock_;
    Trace trace_;
    std::optional<Milliseconds> pausedAt_;
    bool started_ = false;
    SoundError error_ = SoundError::none;

    Track voice_{"voice"};
    SoundHandle handle_ = 0;
    SoundHandle handles_ = 0;
    Track song_{"song"};
    Track video_{"video"};
    std::unique_ptr<VideoReader> pictures_;
    Bitmap picture_;
};

}  // namespace zentrox
