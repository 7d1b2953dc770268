// zentrox-notes IN.notes OUT.mid: turns a song written in letters into a MIDI file.
#include <iostream>
#include <system_error>

#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "tools/notes/song.h"

namespace {

constexpr int badCall = 2;

int fail(const std::string& message) {
    std::cerr << message << '\n';
    return 1;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "Aufruf: zentrox-notes LIED.notes LIED.mid\n";
        return badCall;
    }
    const std::string from = arguments[1];
    const std::string to = arguments[2];
    const auto text = zentrox::readFile(from);
    if (!text) return fail(from + ": die Datei kann nicht gelesen werden");
    try {
        zentrox::replaceFile(to, zentrox::notes::midiFile(zentrox::notes::readSong(*text)));
    } catch (const std::system_error& error) {
        return fail(to + ": " + error.code().message());
    } catch (const zentrox::notes::SongError& error) {
        return fail(from + ":" + std::to_string(error.line) + ": " + error.what());
    }
    return 0;
}
