// zentrox: the game on the desktop.
#include <iostream>

#include "main/options.h"
#include "main/spiel.h"
#include "platform/machine/roots.h"
#include "platform/machine/system.h"
#include "platform/sdl/desktop.h"
#include "platform/sdl/sound.h"

namespace {

using namespace zentrox;

int play(const Options& options) {
    const Files files(options.directory);
    sdl::Desktop desktop(files, restartCommand(programFile(), options));
    const auto fonts = makeFonts();
    const auto sound = desktopSound(options.directory);
    Platform platform(desktop, *fonts, *sound, options.directory);
    platform.roots = rootsToSearch(options, searchRoots(options.directory));
    const auto zustand = std::make_unique<Zustand>();
    return Spielen(platform, *zustand, fromUtf8(options.commandLine));
}

}  // namespace

int main(int argc, char** argv) {
    const Call call = readOptions(argc, argv, programDirectory());
    if (!call.options) return call.status;
    try {
        return play(*call.options);
    } catch (const std::exception& error) {
        // No font at all, say: there is nothing then to show a message with.
        std::cerr << "zentrox: " << error.what() << '\n';
        return 1;
    }
}
