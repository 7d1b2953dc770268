// Films and packed sounds from anywhere: some pictures, some sound, and their lengths.
#include <vector>

#include "fuzz/file_fuzz.h"
#include "platform/machine/decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    static const fuzz::File file("film");
    static std::vector<std::uint32_t> pixels(static_cast<std::size_t>(videoWidth) * videoHeight);
    static std::vector<std::int16_t> samples(2 * 512);
    MediaDecoder* const decoder = mediaDecoder();
    if (decoder == nullptr) std::abort();
    file.hold(data, size);
    if (const auto video = decoder->openVideo(file.path()))
        for (int position = 0; position < 400 && !video->ended(position); position += 40)
            video->advance(position, pixels.data());
    if (const auto sound = decoder->openAudio(file.path()))
        for (int i = 0; i < 20 && sound->read(samples.data(), 512) == 512; ++i) {
        }
    if (decoder->videoLength(file.path()) < 0 || decoder->audioLength(file.path()) < 0) std::abort();
    return 0;
}
