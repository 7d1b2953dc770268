// WAV and MP3 from anywhere, played for two seconds in pieces as a device takes them.
#include <vector>

#include "fuzz/file_fuzz.h"
#include "platform/codec/mp3.h"
#include "platform/codec/wav.h"

namespace {

void play(zentrox::AudioReader* reader) {
    constexpr int piece = 512;
    std::vector<std::int16_t> samples(2 * piece);
    for (int frames = 0; reader != nullptr && frames < 2 * zentrox::sampleRate; frames += piece) {
        const int got = reader->read(samples.data(), piece);
        if (got < 0 || got > piece) std::abort();
        if (got < piece) return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    static const fuzz::File file("ton");
    file.hold(data, size);
    play(openWav(file.path()).get());
    play(openMp3(file.path()).get());
    return 0;
}
