#include "platform/codec/mp3.h"

#include <SDL_audio.h>
#include <mpg123.h>

#include <array>

#include "platform/codec/apart/media.h"

namespace zentrox {

namespace {

constexpr int frameBytes = 4;
// What is written about the sound may claim any length.
constexpr long quiet = MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_SKIP_ID3V2;

struct Closer {
    void operator()(mpg123_handle* decoder) const { mpg123_delete(decoder); }
    void operator()(SDL_AudioStream* resampler) const { SDL_FreeAudioStream(resampler); }
};

template <class T>
using Owned = std::unique_ptr<T, Closer>;

Owned<mpg123_handle> openDecoder(const OpenFile& file) {
    mpg123_init();
    Owned<mpg123_handle> decoder(mpg123_new(nullptr, nullptr));
    if (!decoder) return nullptr;
    mpg123_param(decoder.get(), MPG123_ADD_FLAGS, quiet, 0);
    const long* rates = nullptr;
    std::size_t count = 0;
    mpg123_rates(&rates, &count);
    mpg123_format_none(decoder.get());
    for (std::size_t i = 0; i < count; ++i)
        mpg123_format(decoder.get(), rates[i], MPG123_STEREO, MPG123_ENC_SIGNED_16);
    return mpg123_open_fd(decoder.get(), file.file->number()) == MPG123_OK ? std::move(decoder) : nullptr;
}

class Mp3Reader final : public AudioReader {
public:
    Mp3Reader(OpenFile file, Owned<mpg123_handle> decoder) : file_(std::move(file)), decoder_(std::move(decoder)) {}

    // False if there is not a single frame of sound.
    bool begin() {
        long rate = 0;
        int channels = 0;
        int encoding = 0;
        if (mpg123_getformat(decoder_.get(), &rate, &channels, &encoding) != MPG123_OK) return false;
        resampler_.reset(SDL_NewAudioStream(AUDIO_S16SYS, 2, static_cast<int>(rate), AUDIO_S16SYS, 2, sampleRate));
        return resampler_ && decodeSome();
    }

    int read(std::int16_t* samples, int frames) override {
        const int bytes = frames * frameBytes;
        while (SDL_AudioStreamAvailable(resampler_.get()) < bytes && decodeSome()) {
        }
        return SDL_AudioStreamGet(resampler_.get(), samples, bytes) / frameBytes;
    }

private:
    // False at the end, which is also where the file turns into something else.
    bool decodeSome() {
        if (ended_) return false;
        std::size_t got = 0;
        const int result = mpg123_read(decoder_.get(), decoded_.data(), decoded_.size(), &got);
        ended_ = result != MPG123_OK;
        SDL_AudioStreamPut(resampler_.get(), decoded_.data(), static_cast<int>(got));
        if (ended_) SDL_AudioStreamFlush(resampler_.get());
        return got > 0;
    }

    OpenFile file_;
    Owned<mpg123_handle> decoder_;
    Owned<SDL_AudioStream> resampler_;
    std::array<unsigned char, 4608> decoded_{};  // one frame of the file
    bool ended_ = false;
};

std::unique_ptr<AudioReader> openHere(const OpenFile& file) {
    auto decoder = openDecoder(file);
    if (!decoder) return nullptr;
    auto reader = std::make_unique<Mp3Reader>(file, std::move(decoder));
    if (!reader->begin()) return nullptr;
    return reader;
}

}  // namespace

std::unique_ptr<AudioReader> openMp3(const std::filesystem::path& path) {
    const OpenFile file{sharedForReading(path), path.filename().string()};
    if (!file.file) return nullptr;
    if (auto worker = apart::workerFor(apart::Job::mp3, file)) return apart::soundFrom(std::move(worker));
    return openHere(file);
}

apart::Handler mp3Handler() {
    return {nullptr, [](apart::Channel& channel, const OpenFile& file) {
                apart::serveSound(channel, openHere(file).get());
            }};
}

}  // namespace zentrox
