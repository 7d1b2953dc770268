#include "platform/codec/soundplayer.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <string>

#include "platform/codec/mp3.h"
#include "platform/codec/soundfont.h"
#include "platform/codec/streams.h"
#include "platform/codec/synthesiser.h"
#include "platform/codec/video.h"
#include "platform/codec/wav.h"
#include "platform/machine/files.h"
#include "platform/machine/midi.h"

namespace zentrox {

namespace {

enum class Kind { wav, mp3, other };

Kind kindOf(const std::filesystem::path& file) {
    std::array<char, 3> begin{};
    std::ifstream(file, std::ios::binary).read(begin.data(), begin.size());
    const std::string_view magic(begin.data(), begin.size());
    if (magic == "RIF") return Kind::wav;
    const bool frame = begin[0] == '\xFF' && (static_cast<unsigned char>(begin[1]) & 0xE0U) == 0xE0U;
    return magic == "ID3" || frame ? Kind::mp3 : Kind::other;
}

// Whatever can be decoded at all.
std::unique_ptr<AudioReader> openAny(const std::filesystem::path& file) {
    const auto kind = kindOf(file);
    auto reader = kind == Kind::wav ? openWav(file) : kind == Kind::mp3 ? openMp3(file) : nullptr;
    if (reader) return reader;
    auto* decoder = mediaDecoder();
    return decoder != nullptr ? decoder->openAudio(file) : nullptr;
}

class SoundPlayer final : public SoundDevice {
public:
    SoundPlayer(Files files, std::unique_ptr<SoundOutput> output, std::function<std::int64_t()> clock)
        : files_(std::move(files)),
          output_(std::move(output)),
          clock_(clock),
          streams_(std::move(clock)) {}
    ~SoundPlayer() override { free(); }
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    bool init() override;
    bool start() override { return output_ == nullptr || open_; }
    SoundError error() const override { return error_; }
    void free() override;
    void setPaused(bool paused) override {
        if (open_) output_->setPaused(paused);
    }
    bool lacksSoundFont() const override { return synthesiser_ && !synthesiser_->ready(); }
    void setVolumes(const Volumes& volumes) override { streams_.setVolumes(volumes); }
    void useSoundFontsIn(TextView directory) override { musics_ = files_.systemPath(directory); }

    SoundHandle openVoice(TextView path) override;
    void playVoice(SoundHandle handle) override;
    void freeVoice(SoundHandle handle) override;

    void playEffect(TextView path) override;

    void playSong(TextView path) override;
    void stopSong() override;
    std::int64_t songLength() override { return songLength_; }
    std::int64_t songPosition() override;

    bool playVideo(TextView path) override;
    void stopVideo() override;
    std::int64_t videoLength() override { return video_ ? video_->length() : 0; }
    std::int64_t videoPosition() override;
    const Bitmap* videoFrame() override { return video_ ? video_->frame() : nullptr; }

private:
    std::unique_ptr<AudioReader> synthesise(const std::string& midi);
    SoundHandle failed(SoundError error);

    Files files_;
    std::unique_ptr<SoundOutput> output_;
    std::function<std::int64_t()> clock_;
    std::filesystem::path musics_;
    bool initialised_ = false;
    bool open_ = false;
    SoundError error_ = SoundError::none;

    Streams streams_;
    SoundHandle voice_ = 0;
    SoundHandle handles_ = 0;
    std::unique_ptr<AudioReader> voiceReader_;
    std::unique_ptr<Synthesiser> synthesiser_;
    std::int64_t songLength_ = 0;
    std::unique_ptr<VideoPlayer> video_;
    bool videoHasSound_ = false;
};

bool SoundPlayer::init() {
    if (output_ == nullptr || open_) return true;
    const auto opened = output_->open([this](std::int16_t* samples, int frames) { streams_.mix(samples, frames); });
    open_ = opened == SoundOutput::Opened::yes;
    error_ = open_ ? SoundError::none : SoundError::noDriver;
    // A device that is there but can't be had is a failure of the start.
    initialised_ = opened != SoundOutput::Opened::none;
    return initialised_;
}

void SoundPlayer::free() {
    freeVoice(voice_);
    stopSong();
    stopVideo();
    initialised_ = false;
    if (!open_) return;
    streams_.stop(Track::effect);
    output_->close();
    synthesiser_.reset();
    open_ = false;
}

SoundHandle SoundPlayer::failed(SoundError error) {
    error_ = error;
    return 0;
}

SoundHandle SoundPlayer::openVoice(TextView path) {
    freeVoice(voice_);
    if (!open_) return failed(initialised_ ? SoundError::notStarted : SoundError::notInitialised);
    if (!files_.exists(path)) return failed(SoundError::cannotOpen);
    voiceReader_ = openAny(files_.systemPath(path));
    if (!voiceReader_) return failed(SoundError::unsupported);
    error_ = SoundError::none;
    return voice_ = ++handles_;
}

void SoundPlayer::playVoice(SoundHandle handle) {
    if (handle == 0 || handle != voice_) return;
    if (voiceReader_) streams_.start(Track::voice, std::move(voiceReader_));
}

void SoundPlayer::freeVoice(SoundHandle handle) {
    if (handle == 0 || handle != voice_) return;
    voiceReader_.reset();
    streams_.stop(Track::voice);
    voice_ = 0;
}

void SoundPlayer::playEffect(TextView path) {
    if (!open_) return;
    streams_.stop(Track::effect);
    if (!files_.exists(path)) return;
    if (auto reader = openAny(files_.systemPath(path))) streams_.start(Track::effect, std::move(reader));
}

std::unique_ptr<AudioReader> SoundPlayer::synthesise(const std::string& midi) {
    if (!synthesiser_) {
        synthesiser_ = std::make_unique<Synthesiser>(soundFonts(musics_));
        if (!synthesiser_->ready())
            std::cerr << "zentrox: no General MIDI sound font, music stays silent; install a package such as "
                         "timgm6mb-soundfont or fluid-soundfont-gm, or put a .sf2 file into the directory musics\n";
    }
    return synthesiser_->play(midi);
}

void SoundPlayer::playSong(TextView path) {
    stopSong();
    if (!open_ || !files_.exists(path)) return;
    const auto file = files_.systemPath(path);
    std::unique_ptr<AudioReader> reader;
    if (const auto midi = readMidi(file)) {
        songLength_ = midiLength(*midi).value_or(0);
        if (songLength_ > 0) reader = synthesise(*midi);
    } else if (auto* decoder = mediaDecoder()) {
        reader = openAny(file);
        songLength_ = reader ? decoder->audioLength(file) : 0;
    }
    if (songLength_ > 0) streams_.start(Track::song, std::move(reader));
}

void SoundPlayer::stopSong() {
    streams_.stop(Track::song);
    songLength_ = 0;
}

std::int64_t SoundPlayer::songPosition() {
    return streams_.ended(Track::song) ? songLength_ : std::min(streams_.taken(Track::song), songLength_);
}

bool SoundPlayer::playVideo(TextView path) {
    stopVideo();
    auto* decoder = files_.exists(path) ? mediaDecoder() : nullptr;
    if (decoder == nullptr) return false;
    const auto file = files_.systemPath(path);
    auto pictures = decoder->openVideo(file);
    if (!pictures) return false;
    auto sound = open_ ? decoder->openAudio(file) : nullptr;
    videoHasSound_ = sound != nullptr;
    const auto length = pictures->length() > 0 ? pictures->length() : decoder->videoLength(file);
    std::function<std::int64_t()> clock = [this, begin = clock_()] { return clock_() - begin; };
    if (open_) {
        streams_.start(Track::video, std::move(sound));
        clock = [this] { return streams_.heard(Track::video); };
    }
    video_ = std::make_unique<VideoPlayer>(std::move(pictures), length, std::move(clock));
    return true;
}

void SoundPlayer::stopVideo() {
    streams_.stop(Track::video);
    video_.reset();
}

std::int64_t SoundPlayer::videoPosition() {
    return video_ ? video_->position(!videoHasSound_ || streams_.ended(Track::video)) : 0;
}

}  // namespace

std::unique_ptr<SoundDevice> soundPlayer(const Files& files, std::unique_ptr<SoundOutput> output,
                                         std::function<std::int64_t()> clock) {
    return std::make_unique<SoundPlayer>(files, std::move(output), std::move(clock));
}

}  // namespace zentrox
