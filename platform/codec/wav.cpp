#include "platform/codec/wav.h"

#include <SDL_audio.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/values/limits.h"

namespace zentrox {

namespace {

constexpr int pieceFrames = 512;  // read at a time
constexpr int frameBytes = 4;     // of the device

struct Closer {
    void operator()(SDL_AudioStream* converter) const { SDL_FreeAudioStream(converter); }
};

// Little-endian numbers of a head that has been read whole.
template <std::size_t N>
std::uint32_t number(const std::array<char, N>& head, std::size_t at, int bytes) {
    std::uint32_t value = 0;
    for (int i = bytes; i-- > 0;)
        value = value << 8U | static_cast<unsigned char>(head[at + static_cast<std::size_t>(i)]);
    return value;
}

struct Form {
    int channels = 0;
    int rate = 0;
    int bits = 0;

    std::size_t frame() const { return static_cast<std::size_t>(channels) * static_cast<std::size_t>(bits) / 8; }
};

constexpr std::size_t formBytes = 16;
constexpr std::size_t longFormBytes = 26;  // as far as the kind of samples

std::optional<Form> readForm(std::istream& in, std::uint32_t length) {
    constexpr std::uint32_t plain = 1;
    constexpr std::uint32_t extensible = 0xFFFE;
    std::array<char, longFormBytes> head{};
    if (length < formBytes || !in.read(head.data(), std::min<std::streamsize>(length, longFormBytes))) return {};
    std::uint32_t kind = number(head, 0, 2);
    if (kind == extensible && length >= longFormBytes) kind = number(head, 24, 2);
    const std::uint32_t channels = number(head, 2, 2);
    const std::uint32_t rate = number(head, 4, 4);
    const std::uint32_t bits = number(head, 14, 2);
    const bool usual = bits == 8 || bits == 16 || bits == 24 || bits == 32;
    if (kind != plain || !usual || channels < 1 || channels > limits::channels) return {};
    if (rate < limits::lowestRate || rate > limits::highestRate) return {};
    const Form form{static_cast<int>(channels), static_cast<int>(rate), static_cast<int>(bits)};
    if (number(head, 12, 2) != form.frame()) return {};
    return form;
}

// Goes from chunk to chunk; the stream then stands at the first sample. `length` is what the header says of them.
std::optional<Form> findSamples(std::istream& in, std::uint32_t& length) {
    std::array<char, 12> riff{};
    const std::string_view magic(riff.data(), riff.size());
    if (!in.read(riff.data(), riff.size()) || !magic.starts_with("RIFF") || !magic.ends_with("WAVE")) return {};
    std::optional<Form> form;
    std::array<char, 8> head{};
    for (int chunk = 0; chunk < limits::soundChunks && in.read(head.data(), head.size()); ++chunk) {
        const std::string_view name(head.data(), 4);
        length = number(head, 4, 4);
        if (name == "data") return form;
        const std::streamoff next = std::streamoff(in.tellg()) + std::streamoff{length} + (length & 1U);
        if (name == "fmt " && !(form = readForm(in, length))) return {};
        in.seekg(next);
    }
    return {};
}

class WavReader final : public AudioReader {
public:
    explicit WavReader(const std::filesystem::path& file) : in_(file, std::ios::binary) {
        std::uint32_t length = 0;
        const auto form = findSamples(in_, length);
        if (!form) return;
        frame_ = form->frame();
        left_ = length;
        piece_.resize(pieceFrames * frame_);
        widened_ = form->bits == 24;
        const SDL_AudioFormat format = form->bits == 8 ? AUDIO_U8 : form->bits == 16 ? AUDIO_S16LSB : AUDIO_S32LSB;
        converter_.reset(SDL_NewAudioStream(format, static_cast<Uint8>(form->channels), form->rate, AUDIO_S16SYS, 2,
                                            sampleRate));
        if (converter_) convertPiece();
    }
    // There is a sample to be heard.
    bool ready() const { return converter_ && any_; }

    int read(std::int16_t* samples, int frames) override {
        const int bytes = frames * frameBytes;
        while (SDL_AudioStreamAvailable(converter_.get()) < bytes && left_ > 0) convertPiece();
        return std::max(0, SDL_AudioStreamGet(converter_.get(), samples, bytes)) / frameBytes;
    }

private:
    void convertPiece() {
        in_.read(piece_.data(), static_cast<std::streamsize>(std::min(left_, piece_.size())));
        auto got = static_cast<std::size_t>(in_.gcount());
        got -= got % frame_;
        // The file may end before its header says so.
        left_ = got < piece_.size() ? 0 : left_ - got;
        any_ = any_ || got > 0;
        put(got);
        if (left_ == 0) SDL_AudioStreamFlush(converter_.get());
    }
    void put(std::size_t bytes) {
        if (!widened_) {
            SDL_AudioStreamPut(converter_.get(), piece_.data(), static_cast<int>(bytes));
            return;
        }
        // Samples of 24 bits are the upper ones of 32.
        wide_.assign(bytes / 3 * 4, 0);
        for (std::size_t i = 0; i < bytes; ++i) wide_[i / 3 * 4 + i % 3 + 1] = piece_[i];
        SDL_AudioStreamPut(converter_.get(), wide_.data(), static_cast<int>(wide_.size()));
    }

    std::ifstream in_;
    std::unique_ptr<SDL_AudioStream, Closer> converter_;
    std::vector<char> piece_;
    std::vector<char> wide_;
    std::size_t frame_ = 1;  // bytes
    std::size_t left_ = 0;   // bytes, as the header says
    bool widened_ = false;
    bool any_ = false;
};

}  // namespace

std::unique_ptr<AudioReader> openWav(const std::filesystem::path& file) {
    auto reader = std::make_unique<WavReader>(file);
    if (!reader->ready()) return nullptr;
    return reader;
}

}  // namespace zentrox
