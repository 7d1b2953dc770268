// Songs in letters from anywhere: one wrong line, or a MIDI file that our own reader takes.
#include <cstdlib>

#include "fuzz/file_fuzz.h"
#include "platform/machine/midi.h"
#include "tools/notes/song.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    try {
        const notes::Song song = notes::readSong({reinterpret_cast<const char*>(data), size});
        const std::string file = notes::midiFile(song);
        if (!file.starts_with("MThd")) std::abort();
        midiLength(file);
    } catch (const notes::SongError& error) {
        if (error.line < 0) std::abort();
    }
    return 0;
}
