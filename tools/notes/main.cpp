// zentrox-notes IN.notes OUT.mid: turns a song written in letters into a MIDI file.
#include <CLI/CLI.hpp>
#include <iostream>
#include <system_error>

#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "tools/completion/completion.h"
#include "tools/notes/song.h"
#include "tools/reasons/reasons.h"

namespace {

constexpr int badCall = 2;

int fail(const std::string& message) {
    std::cerr << message << '\n';
    return 1;
}

int convert(const std::string& from, const std::string& to) {
    const auto text = zentrox::readFile(from);
    if (!text) return fail(from + ": die Datei kann nicht gelesen werden");
    try {
        zentrox::replaceFile(to, zentrox::notes::midiFile(zentrox::notes::readSong(*text)));
    } catch (const std::system_error& error) {
        return fail(zentrox::cannotWrite(to, error));
    } catch (const zentrox::notes::SongError& error) {
        return fail(from + ":" + std::to_string(error.line) + ": " + error.what());
    }
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    CLI::App app("Turns a song written in letters into a MIDI file.", "zentrox-notes");
    std::string from;
    std::string to;
    app.set_version_flag("--version", "zentrox-notes " ZENTROX_VERSION);
    app.add_option("SONG", from, "the song in letters, *.notes")->required();
    app.add_option("MIDI", to, "the file to write, *.mid")->required();
    zentrox::addWordsFor(app);
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : badCall;
    }
    return convert(from, to);
}
