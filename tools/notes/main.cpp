// zentrox-notes IN.notes OUT.mid: turns a song written in letters into a MIDI file.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>

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
    std::ifstream in(from, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    if (!in) return fail(from + ": " + std::strerror(errno));
    try {
        const std::string file = zentrox::notes::midiFile(zentrox::notes::readSong(text));
        std::ofstream out(to, std::ios::binary);
        out.write(file.data(), static_cast<std::streamsize>(file.size()));
        out.close();
        if (!out) return fail(to + ": " + std::strerror(errno));
    } catch (const zentrox::notes::SongError& error) {
        return fail(from + ":" + std::to_string(error.line) + ": " + error.what());
    }
    return 0;
}
