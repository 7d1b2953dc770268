#include "platform/codec/wav.h"

#include <SDL_audio.h>

#include <algorithm>

namespace zentrox {

namespace {

constexpr Uint32 pieceFrames = 512;
// What lies beyond is a damaged header.
constexpr int lowestRate = 1000;
constexpr int highestRate = 200'000;
constexpr int mostChannels = 8;
constexpr int frameBytes = 4;

struct Closer {
    void operator()(Uint8* samples) const { SDL_FreeWAV(samples); }
    void operator()(SDL_AudioStream* converter) const { SDL_FreeAudioStream(converter); }
};

class WavReader final : public AudioReader {
public:
    explicit WavReader(const std::filesystem::path& file) {
        SDL_AudioSpec form{};
        Uint8* samples = nullptr;
        if (SDL_LoadWAV(file.c_str(), &form, &samples, &left_) == nullptr) return;
        samples_.reset(samples);
        if (form.freq < lowestRate || form.freq > highestRate || form.channels > mostChannels) return;
        next_ = samples;
        const Uint32 frame = SDL_AUDIO_BITSIZE(form.format) / 8U * form.channels;
        piece_ = pieceFrames * frame;
        left_ -= left_ % frame;
        converter_.reset(SDL_NewAudioStream(form.format, form.channels, form.freq, AUDIO_S16SYS, 2, sampleRate));
    }

    bool ready() const { return converter_ && left_ > 0; }

    int read(std::int16_t* samples, int frames) override {
        const int bytes = frames * frameBytes;
        while (SDL_AudioStreamAvailable(converter_.get()) < bytes && left_ > 0) convertPiece();
        return std::max(0, SDL_AudioStreamGet(converter_.get(), samples, bytes)) / frameBytes;
    }

private:
    void convertPiece() {
        const Uint32 size = std::min(left_, piece_);
        SDL_AudioStreamPut(converter_.get(), next_, static_cast<int>(size));
        next_ += size;
        left_ -= size;
        if (left_ == 0) SDL_AudioStreamFlush(converter_.get());
    }

    std::unique_ptr<Uint8, Closer> samples_;
    std::unique_ptr<SDL_AudioStream, Closer> converter_;
    const Uint8* next_ = nullptr;
    Uint32 left_ = 0;   // bytes
    Uint32 piece_ = 0;  // bytes
};

}  // namespace

std::unique_ptr<AudioReader> openWav(const std::filesystem::path& file) {
    auto reader = std::make_unique<WavReader>(file);
    if (!reader->ready()) return nullptr;
    return reader;
}

}  // namespace zentrox
