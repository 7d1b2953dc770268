#include "platform/web/sound.h"

#include <algorithm>
#include <vector>

#include "platform/machine/decoder.h"
#include "platform/machine/files.h"
#include "platform/web/calls.h"
#include "platform/web/lengths.h"

namespace zentrox::web {

namespace {

enum Track { voiceTrack, effectTrack, songTrack };

std::int64_t held(double milliseconds, std::int64_t most) {
    return std::clamp(static_cast<std::int64_t>(milliseconds), std::int64_t{0}, most);
}

class PageSound final : public SoundDevice {
public:
    explicit PageSound(Files files) : files_(std::move(files)) {}
    ~PageSound() override { free(); }
    PageSound(const PageSound&) = delete;
    PageSound& operator=(const PageSound&) = delete;

    bool init() override { return started_ = true; }
    bool start() override { return true; }
    SoundError error() const override { return error_; }
    void free() override {
        freeVoice(voice_);
        pageStop(effectTrack);
        stopSong();
        stopVideo();
        started_ = false;
    }

    SoundHandle openVoice(TextView path) override {
        freeVoice(voice_);
        voiceFile_ = files_.systemPath(path);
        error_ = !started_                          ? SoundError::notStarted
                 : lengthsOf(voiceFile_).sound == 0 ? SoundError::cannotOpen
                                                    : SoundError::none;
        return voice_ = error_ == SoundError::none ? ++handles_ : 0;
    }
    void playVoice(SoundHandle handle) override {
        if (handle != 0 && handle == voice_) pagePlay(voiceTrack, voiceFile_.c_str());
    }
    void freeVoice(SoundHandle handle) override {
        if (handle == 0 || handle != voice_) return;
        pageStop(voiceTrack);
        voice_ = 0;
    }

    void playEffect(TextView path) override {
        if (started_) play(effectTrack, path);
    }

    void playSong(TextView path) override {
        stopSong();
        if (started_) songLength_ = play(songTrack, path);
    }
    void stopSong() override {
        pageStop(songTrack);
        songLength_ = 0;
    }
    std::int64_t songLength() override { return songLength_; }
    std::int64_t songPosition() override { return songLength_ == 0 ? 0 : held(pageHeard(songTrack), songLength_); }

    bool playVideo(TextView path) override {
        stopVideo();
        const auto file = files_.systemPath(path);
        filmLength_ = lengthsOf(file).film;
        if (filmLength_ == 0) return false;
        pageFilm(file.c_str());
        return true;
    }
    void stopVideo() override {
        pageStopFilm();
        filmLength_ = 0;
        filmPosition_ = 0;
    }
    std::int64_t videoLength() override { return filmLength_; }
    // Never goes back. A film that can't be shown is over at once.
    std::int64_t videoPosition() override {
        if (filmLength_ == 0) return 0;
        const double seen = pageFilmSeen();
        filmPosition_ = std::max(filmPosition_, seen < 0 ? filmLength_ : held(seen, filmLength_));
        return filmPosition_;
    }
    const Bitmap* videoFrame() override {
        if (filmLength_ == 0 || pageFilmPicture(picture_.row(0)) == 0) return nullptr;
        std::uint32_t* const pixels = picture_.row(0);
        std::transform(pixels, pixels + videoWidth * videoHeight, pixels, [](std::uint32_t pixel) {
            return (pixel & 0xFF00U) | (pixel & 0xFFU) << 16U | (pixel >> 16U & 0xFFU);
        });
        return &picture_;
    }

private:
    // Gives its length; 0 and silence for what can't be played.
    std::int64_t play(Track track, TextView path) {
        const auto file = files_.systemPath(path);
        const std::int64_t length = lengthsOf(file).sound;
        if (length > 0)
            pagePlay(track, file.c_str());
        else
            pageStop(track);
        return length;
    }

    Files files_;
    bool started_ = false;
    SoundError error_ = SoundError::none;
    SoundHandle voice_ = 0;
    SoundHandle handles_ = 0;
    std::filesystem::path voiceFile_;
    std::int64_t songLength_ = 0;
    std::int64_t filmLength_ = 0;
    std::int64_t filmPosition_ = 0;
    Bitmap picture_{Size{videoWidth, videoHeight}};
};

}  // namespace

std::unique_ptr<SoundDevice> pageSound(Files story) {
    return std::make_unique<PageSound>(std::move(story));
}

}  // namespace zentrox::web
