// zentrox: the game on the desktop.
#include <iostream>

#include "comfort/comforts.h"
#include "comfort/desk.h"
#include "engine/files/titeldatei.h"
#include "main/desktopcomfort.h"
#include "main/options.h"
#include "main/spiel.h"
#include "main/story.h"
#include "platform/codec/zip.h"
#include "platform/machine/roots.h"
#include "platform/machine/system.h"
#include "platform/sdl/desktop.h"
#include "platform/sdl/sound.h"
#include "platform/values/error.h"

namespace {

using namespace zentrox;

struct StoryPlace {
    Files files;                     // its saved games in their place
    std::filesystem::path settings;  // a directory
};

StoryPlace placeOf(const Options& options) {
    Files files = openStory(options.directory);
    const std::string name = directoryNameOf(TitelLesen(files), files, options.directory);
    const PlayersHome home = playersHome();
    const PlacesAsked asked = placesAsked(options, programDirectory(), options.directory, name);
    const Places places = placesFor(asked, home);
    gatherSaves(places, asked, home);
    files.keepSavesIn(places.saves);
    return {std::move(files), places.settings};
}

int play(const Options& options, const StoryPlace& place) {
    const Files& files = place.files;
    sdl::Desktop desktop(files, restartCommand(programFile(), options));
    const auto fonts = makeFonts();
    SoundClock clock(desktop);
    const auto sound = desktopSound(files, [&clock] { return clock.now(); });
    Platform platform(desktop, *fonts, *sound, files);
    platform.roots = rootsToSearch(options, searchRoots(options.directory));
    const auto zustand = std::make_unique<Zustand>();
    DesktopComfort machine(desktop, *sound, clock);
    Comforts comforts(platform, *zustand, machine, settingsFile(place.settings));
    const Desk desk(comforts);
    desktop.onPause = [&comforts](bool paused) { comforts.machineStands(paused); };
    return Spielen(platform, *zustand, fromUtf8(options.commandLine), {.observer = &comforts.observers()});
}

// Who opened the story by a click has no terminal to be told in.
int refuse(const Options& options, const DataError& error) {
    const Files files(options.directory.parent_path());
    sdl::Desktop desktop(files, {});
    const auto fonts = makeFonts();
    const auto sound = desktopSound(files);
    Platform platform(desktop, *fonts, *sound, files);
    try {
        showMessageBox(platform, {"Zentrox", error.message(), MessageBox::Icon::critical});
    } catch (const ProgramEnd&) {
        std::cerr << "zentrox: " << toUtf8(error.message()) << '\n';
    }
    return 1;
}

int play(Options options) {
    options.directory =
        storyToPlay(options, programDirectory(), rootsToSearch(options, searchRoots(programDirectory())));
    try {
        return play(options, placeOf(options));
    } catch (const DataError& error) {
        return refuse(options, error);
    }
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
