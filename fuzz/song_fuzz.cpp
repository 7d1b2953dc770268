// MIDI songs from anywhere: those with a length are played for half a second.
#include <vector>

#include "fuzz/file_fuzz.h"
#include "platform/codec/soundfont.h"
#include "platform/codec/synthesiser.h"
#include "platform/machine/midi.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    static Synthesiser synthesiser(soundFonts({}));
    const std::string song(reinterpret_cast<const char*>(data), size);
    const auto length = midiLength(song);
    if (!length) return 0;
    if (*length < 1) std::abort();
    const auto reader = synthesiser.play(song);
    std::vector<std::int16_t> samples(2 * 512);
    for (int i = 0; reader && i < 44; ++i) reader->read(samples.data(), 512);
    return 0;
}
