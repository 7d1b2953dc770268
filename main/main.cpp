// zentrox: the game on the desktop.
#include <array>
#include <iostream>
#include <string>
#include <vector>

#include "main/spiel.h"
#include "platform/roots.h"
#include "platform/sdl/desktop.h"
#include "platform/sdl/sound/sound.h"
#include "platform/system.h"

namespace {

namespace fs = std::filesystem;
using namespace zentrox;

constexpr int wrongCall = 2;

constexpr const char* help =
    "Usage: zentrox [--dir DIR] [ROOM]\n"
    "Plays the story in the program's directory, or in DIR.\n"
    "\n"
    "  --dir DIR   where the data directories and the saved games lie\n"
    "  --help      shows this and ends\n"
    "  --version   shows the version and ends\n"
    "\n"
    "ROOM is the file name of a room; the game then begins there, without its menu.\n"
    "F11 or Alt+Enter switches to full screen and back.\n"
    "ZENTROX_SOUND=none in the environment plays without sound.\n";

struct Options {
    fs::path directory;
    std::string commandLine;
    int status = -1;  // 0 or more: the program ends at once
};

// The words that begin with two dashes are the platform's; what remains is the game's command line.
Options readOptions(const std::vector<std::string>& words) {
    Options options;
    options.directory = programDirectory();
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--help") {
            std::cout << help;
            options.status = 0;
        } else if (word == "--version") {
            std::cout << "zentrox " ZENTROX_VERSION "\n";
            options.status = 0;
        } else if (word == "--dir" && i + 1 < words.size()) {
            options.directory = words[++i];
        } else if (word.rfind("--dir=", 0) == 0) {
            options.directory = word.substr(6);
        } else if (word.rfind("--", 0) == 0) {
            std::cerr << "zentrox: " << word << ": unknown, or without its directory; see zentrox --help\n";
            options.status = wrongCall;
        } else {
            options.commandLine += (options.commandLine.empty() ? "" : " ") + word;
        }
        if (options.status >= 0) return options;
    }
    std::error_code error;
    options.directory = fs::absolute(options.directory, error).lexically_normal();
    if (!fs::is_directory(options.directory, error)) {
        std::cerr << "zentrox: " << options.directory.string() << ": there is no such directory\n";
        options.status = wrongCall;
    }
    return options;
}

int play(const Options& options) {
    const Files files(options.directory);
    sdl::Desktop desktop(files, {programFile().string(), "--dir", options.directory.string()});
    const auto fonts = makeFonts();
    const auto sound = desktopSound(options.directory);
    Platform platform(desktop, *fonts, *sound, options.directory);
    platform.roots = searchRoots(options.directory);
    const auto zustand = std::make_unique<Zustand>();
    return Spielen(platform, *zustand, fromUtf8(options.commandLine));
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = readOptions({argv + 1, argv + argc});
    if (options.status >= 0) return options.status;
    try {
        return play(options);
    } catch (const std::exception& error) {
        // No font at all, say: there is nothing then to show a message with.
        std::cerr << "zentrox: " << error.what() << '\n';
        return 1;
    }
}
