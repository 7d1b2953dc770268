// zentrox: the game on the desktop.
#include <array>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "main/spiel.h"
#include "platform/machine/roots.h"
#include "platform/machine/system.h"
#include "platform/sdl/desktop.h"
#include "platform/sdl/sound.h"

namespace {

namespace fs = std::filesystem;
using namespace zentrox;

constexpr int wrongCall = 2;

constexpr const char* help =
    "Usage: zentrox [--dir DIR] [--root DIR]... [ROOM]\n"
    "Plays the story in the program's directory, or in DIR.\n"
    "\n"
    "  --dir DIR   where the data directories and the saved games lie\n"
    "  --root DIR  a directory to take for the CD, before those that are mounted; may be repeated\n"
    "  --help      shows this and ends\n"
    "  --version   shows the version and ends\n"
    "\n"
    "ROOM is the file name of a room; the game then begins there, without its menu.\n"
    "F11 or Alt+Enter switches to full screen and back.\n"
    "ZENTROX_SOUND=none in the environment plays without sound.\n";

struct Options {
    fs::path directory;
    std::vector<fs::path> roots;
    std::string commandLine;
    int status = -1;  // 0 or more: the program ends at once
};

// What stands behind `--name=` in this word, or in the next one, which then is taken; nothing if it is another
// option.
std::optional<std::string> valueOf(const std::string& name, const std::vector<std::string>& words, std::size_t& i) {
    const std::string& word = words[i];
    if (word.rfind(name + "=", 0) == 0) return word.substr(name.size() + 1);
    if (word == name && i + 1 < words.size()) return words[++i];
    return std::nullopt;
}

fs::path whole(const fs::path& path) {
    std::error_code error;
    return fs::absolute(path, error).lexically_normal();
}

void needDirectory(Options& options, const fs::path& path) {
    std::error_code error;
    if (fs::is_directory(path, error)) return;
    std::cerr << "zentrox: " << path.string() << ": there is no such directory\n";
    options.status = wrongCall;
}

// The words that begin with two dashes are the platform's; what remains is the game's command line.
Options readOptions(const std::vector<std::string>& words) {
    Options options;
    options.directory = programDirectory();
    for (std::size_t i = 0; i < words.size() && options.status < 0; ++i) {
        const std::string& word = words[i];
        if (word == "--help") {
            std::cout << help;
            options.status = 0;
        } else if (word == "--version") {
            std::cout << "zentrox " ZENTROX_VERSION "\n";
            options.status = 0;
        } else if (const auto directory = valueOf("--dir", words, i)) {
            options.directory = *directory;
        } else if (const auto root = valueOf("--root", words, i)) {
            options.roots.push_back(whole(*root));
        } else if (word.rfind("--", 0) == 0) {
            std::cerr << "zentrox: " << word << ": unknown, or without its directory; see zentrox --help\n";
            options.status = wrongCall;
        } else {
            options.commandLine += (options.commandLine.empty() ? "" : " ") + word;
        }
    }
    if (options.status >= 0) return options;
    options.directory = whole(options.directory);
    needDirectory(options, options.directory);
    for (const fs::path& root : options.roots) needDirectory(options, root);
    return options;
}

// Starts the game anew, without the room of the command line.
std::vector<std::string> restartCommand(const Options& options) {
    std::vector<std::string> command{programFile().string(), "--dir", options.directory.string()};
    for (const fs::path& root : options.roots) command.insert(command.end(), {"--root", root.string()});
    return command;
}

int play(const Options& options) {
    const Files files(options.directory);
    sdl::Desktop desktop(files, restartCommand(options));
    const auto fonts = makeFonts();
    const auto sound = desktopSound(options.directory);
    Platform platform(desktop, *fonts, *sound, options.directory);
    platform.roots = options.roots;
    for (const fs::path& root : searchRoots(options.directory)) platform.roots.push_back(root);
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
