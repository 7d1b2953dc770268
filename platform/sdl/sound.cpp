#include "platform/sdl/sound.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "platform/codec/levels.h"
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

// An effect has to be heard within 20 milliseconds: a buffer is 12 of them.
constexpr int bufferFrames = 512;

// Error codes, see `BassFehlerText`.
constexpr int noError = 0;
constexpr int cannotOpen = 2;
constexpr int noDriver = 3;
constexpr int unsupported = 6;
constexpr int notStarted = 9;

struct Closer {
    void operator()(Mix_Music* music) const { Mix_FreeMusic(music); }
};

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

}  // namespace

class DesktopSound final : public SoundDevice {
public:
    DesktopSound(Files files, bool muted) : files_(std::move(files)), muted_(muted) {}
    ~DesktopSound() override { free(); }
    DesktopSound(const DesktopSound&) = delete;
    DesktopSound& operator=(const DesktopSound&) = delete;

    bool init() override;
    bool start() override { return muted_ || open_; }
    int errorCode() const override { return error_; }
    void free() override;
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
    bool openDevice();
    bool loadVoice(const std::filesystem::path& file);
    std::unique_ptr<AudioReader> synthesise(const std::string& midi);
    SoundHandle failed(int code);

    Files files_;
    bool muted_;
    std::filesystem::path musics_;
    bool open_ = false;
    int error_ = noError;

    Streams streams_;
    SoundHandle voice_ = 0;
    SoundHandle handles_ = 0;
    std::unique_ptr<Mix_Music, Closer> voiceMusic_;
    std::unique_ptr<AudioReader> voiceReader_;
    std::unique_ptr<Synthesiser> synthesiser_;
    std::int64_t songLength_ = 0;
    std::unique_ptr<VideoPlayer> video_;
    bool videoHasSound_ = false;
};

bool DesktopSound::init() {
    if (muted_ || open_) return true;
    error_ = noError;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
        open_ = openDevice();
        // A device that is there but can't be had is a failure of the start.
        const bool there = open_ || SDL_GetNumAudioDevices(0) != 0;
        if (!open_) SDL_QuitSubSystem(SDL_INIT_AUDIO);
        if (there) return true;
    }
    error_ = noDriver;
    return false;
}

bool DesktopSound::openDevice() {
    error_ = noDriver;
    if (Mix_OpenAudioDevice(sampleRate, AUDIO_S16SYS, 2, bufferFrames, nullptr, 0) != 0) return false;
    error_ = noError;
    Mix_VolumeMusic(voiceLevel);
    Mix_SetPostMix(
        [](void* streams, Uint8* samples, int bytes) {
            static_cast<Streams*>(streams)->mix(reinterpret_cast<std::int16_t*>(samples), bytes / 4);
        },
        &streams_);
    return true;
}

void DesktopSound::free() {
    freeVoice(voice_);
    stopSong();
    stopVideo();
    if (!open_) return;
    streams_.stop(Track::effect);
    Mix_SetPostMix(nullptr, nullptr);
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    synthesiser_.reset();
    open_ = false;
}

SoundHandle DesktopSound::failed(int code) {
    error_ = code;
    return 0;
}

SoundHandle DesktopSound::openVoice(TextView path) {
    freeVoice(voice_);
    if (!open_) return failed(notStarted);
    if (!files_.exists(path)) return failed(cannotOpen);
    if (!loadVoice(files_.systemPath(path))) return failed(unsupported);
    error_ = noError;
    return voice_ = ++handles_;
}

bool DesktopSound::loadVoice(const std::filesystem::path& file) {
    // What SDL2_mixer calls its music is what it reads while it plays: here that is the voice.
    if (kindOf(file) == Kind::wav)
        voiceMusic_.reset(Mix_LoadMUSType_RW(SDL_RWFromFile(file.c_str(), "rb"), MUS_WAV, SDL_TRUE));
    if (!voiceMusic_) voiceReader_ = openAny(file);
    return voiceMusic_ || voiceReader_;
}

void DesktopSound::playVoice(SoundHandle handle) {
    if (handle == 0 || handle != voice_) return;
    if (voiceMusic_)
        Mix_PlayMusic(voiceMusic_.get(), 1);
    else if (voiceReader_)
        streams_.start(Track::voice, std::move(voiceReader_));
}

void DesktopSound::freeVoice(SoundHandle handle) {
    if (handle == 0 || handle != voice_) return;
    voiceMusic_.reset();
    voiceReader_.reset();
    streams_.stop(Track::voice);
    voice_ = 0;
}

void DesktopSound::playEffect(TextView path) {
    if (!open_) return;
    streams_.stop(Track::effect);
    if (!files_.exists(path)) return;
    if (auto reader = openAny(files_.systemPath(path))) streams_.start(Track::effect, std::move(reader));
}

std::unique_ptr<AudioReader> DesktopSound::synthesise(const std::string& midi) {
    if (!synthesiser_) {
        synthesiser_ = std::make_unique<Synthesiser>(soundFonts(musics_));
        if (!synthesiser_->ready())
            std::cerr << "zentrox: no General MIDI sound font, music stays silent; install a package such as "
                         "timgm6mb-soundfont or fluid-soundfont-gm, or put a .sf2 file into the directory musics\n";
    }
    return synthesiser_->play(midi);
}

void DesktopSound::playSong(TextView path) {
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

void DesktopSound::stopSong() {
    streams_.stop(Track::song);
    songLength_ = 0;
}

std::int64_t DesktopSound::songPosition() {
    return streams_.ended(Track::song) ? songLength_ : std::min(streams_.taken(Track::song), songLength_);
}

bool DesktopSound::playVideo(TextView path) {
    stopVideo();
    auto* decoder = files_.exists(path) ? mediaDecoder() : nullptr;
    if (decoder == nullptr) return false;
    const auto file = files_.systemPath(path);
    auto pictures = decoder->openVideo(file);
    if (!pictures) return false;
    auto sound = open_ ? decoder->openAudio(file) : nullptr;
    videoHasSound_ = sound != nullptr;
    const auto length = pictures->length() > 0 ? pictures->length() : decoder->videoLength(file);
    using Clock = std::chrono::steady_clock;
    std::function<std::int64_t()> clock = [begin = Clock::now()] {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin).count();
    };
    if (open_) {
        streams_.start(Track::video, std::move(sound));
        clock = [this] { return streams_.heard(Track::video); };
    }
    video_ = std::make_unique<VideoPlayer>(std::move(pictures), length, std::move(clock));
    return true;
}

void DesktopSound::stopVideo() {
    streams_.stop(Track::video);
    video_.reset();
}

std::int64_t DesktopSound::videoPosition() {
    return video_ ? video_->position(!videoHasSound_ || streams_.ended(Track::video)) : 0;
}

std::unique_ptr<SoundDevice> desktopSound(const Files& files) {
    const char* choice = std::getenv("ZENTROX_SOUND");
    return std::make_unique<DesktopSound>(files, choice != nullptr && std::string_view(choice) == "none");
}

}  // namespace zentrox
