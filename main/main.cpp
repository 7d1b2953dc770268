// zentrox: the game on the desktop.
#include <iostream>

#include "author/areas.h"
#include "author/panel.h"
#include "author/workbench.h"
#include "comfort/comforts.h"
#include "comfort/desk.h"
#include "comfort/games.h"
#include "comfort/hands.h"
#include "comfort/keepsakes.h"
#include "comfort/pictures.h"
#include "comfort/question.h"
#include "comfort/talk.h"
#include "engine/files/titeldatei.h"
#include "main/beginning.h"
#include "main/desktopcomfort.h"
#include "main/options.h"
#include "main/report.h"
#include "main/spiel.h"
#include "main/story.h"
#include "platform/codec/apart/handlers.h"
#include "platform/codec/mp3.h"
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

// The game on its sources.
struct AuthorsPlace {
    AuthorsPlace(const Options& options, sdl::Desktop& desktop, Comforts& comforts, author::WalkWriter* record)
        : compiler(*options.author, options.directory),
          workbench(comforts, compiler, record),
          areas(workbench),
          panel(workbench, areas, desktop, options.panel) {
        // Back in the menu, which is another process, the panel stands where it stood.
        panel.onShown = [&desktop, next = options](bool stands) mutable {
            next.panel = stands;
            desktop.setRestartCommand(restartCommand(programFile(), next));
        };
    }
    author::Compiler compiler;
    author::Workbench workbench;
    author::Areas areas;
    author::Panel panel;
};

// What is played, written down.
class Record {
public:
    author::WalkWriter& writer() { return writer_; }
    Record(const Options& options, Comforts& comforts)
        : file_(*options.record, options.recordGoesOn),
          writer_(file_) {
        if (!options.recordGoesOn) file_.line(walkCall(options.commandLine, options.beginning));
        writer_.watch(&comforts.platform(), &comforts.zustand());
        if (options.recordGoesOn) writer_.goesOn();
        comforts.observers().Dazu(writer_);
    }
    // To be called behind all who keep inputs from the game: those are not a part of the play.
    void sees(Comforts& comforts, Keepsakes& keepsakes) {
        keepsakes.onQuickSave = [this] { writer_.savesByKey(); };
        keepsakes.onQuickLoad = [this] { writer_.loadsByKey(); };
        comforts.addLook([this](const Input& input) {
            writer_.sees(input);
            return false;
        });
    }

private:
    author::RecordFile file_;
    author::WalkWriter writer_;
};

// The story could not begin, since this machine has no sound. Who then wants to play without is remembered.
void offerSilence(Comforts& comforts) {
    try {
        if (!ask(comforts.platform(),
                 "Zentrox findet auf diesem Rechner keinen Ton.\nSoll es ohne Ton noch einmal beginnen?"_t,
                 "Ohne Ton spielen"_t, "Beenden"_t))
            return;
    } catch (const ProgramEnd&) {
        return;
    }
    Settings settings = comforts.settings();
    settings.noSound = true;
    comforts.change(settings);
    comforts.platform().backend.restart();
}

// A fault of the program is told of while there still is something to report.
int playOn(Platform& platform, Zustand& zustand, const Text& commandLine, const Extras& extras,
           std::optional<Report>& report) {
    try {
        return Spielen(platform, zustand, commandLine, extras);
    } catch (const std::exception& error) {
        std::cerr << "zentrox: " << error.what() << '\n';
        if (report) report->offerAfter(error.what());
        return 1;
    }
}

int play(const Options& options, const StoryPlace& place) {
    const Files& files = place.files;
    checkBeginning(options.beginning, files);
    sdl::Desktop desktop(files, restartCommand(programFile(), options));
    if (options.beginning.seed) desktop.setSeed(*options.beginning.seed);
    const auto fonts = makeFonts();
    SoundClock clock(desktop);
    const bool silent = options.noSound || storedSettings(settingsFile(place.settings)).noSound;
    const auto sound = desktopSound(
        files, [&clock] { return clock.now(); }, silent);
    Platform platform(desktop, *fonts, *sound, files);
    platform.roots = rootsToSearch(options, searchRoots(options.directory));
    const auto zustand = std::make_unique<Zustand>();
    DesktopComfort machine(desktop, *sound, clock);
    Comforts comforts(platform, *zustand, machine, settingsFile(place.settings));
    Desk desk(comforts);
    const Screenshots screenshots(comforts, picturesDirectory());
    GameComforts games(comforts);
    Beginner beginner(options.beginning);
    beginner.watch(&platform, zustand.get());
    if (options.beginning.hasState()) comforts.observers().Dazu(beginner);
    std::optional<Record> record;
    if (options.record) record.emplace(options, comforts);
    std::optional<AuthorsPlace> authors;
    if (options.author) authors.emplace(options, desktop, comforts, record ? &record->writer() : nullptr);
    std::optional<Report> report;
    if (!options.author)  // its walk would not know of what an author does
        report.emplace(comforts, documentsDirectory(), walkCall(options.commandLine, options.beginning));
    Hands hands(comforts);  // behind the author's keys
    desktop.onPause = [&comforts](bool paused) { comforts.machineStands(paused); };
    Keepsakes keepsakes(comforts);
    const Talk talk(comforts, keepsakes.history());
    if (record) record->sees(comforts, keepsakes);
    Extras extras{.observer = &comforts.observers(), .saves = &keepsakes.saves(), .aroundGame = games.wrapper()};
    if (options.goesOn && keepsakes.canContinue()) {
        keepsakes.continueWhenOpened();
        extras.withoutMenu = true;
    }
    extras.menuStands = [&keepsakes](auto begin) { keepsakes.menuStands(std::move(begin)); };
    const int status = playOn(platform, *zustand, fromUtf8(options.commandLine), extras, report);
    if (status != 0 && sound->error() == SoundError::noDriver) offerSilence(comforts);
    return status;
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

apart::Handlers handlers() {
    apart::Handlers all = apart::handlers();
    all[static_cast<std::size_t>(apart::Job::mp3)] = mp3Handler();
    return all;
}

int play(Options options) {
    if (options.author && !options.storyNamed) {
        options.directory = author::dataOf(*options.author);
        options.storyNamed = true;
        if (options.directory.empty())
            throw std::runtime_error("there are no data directories with " + options.author->string() +
                                     "; --dir says where they are");
    }
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
    const apart::Apart decoders(handlers(), apart::ofPlayers);
    try {
        return play(*call.options);
    } catch (const std::exception& error) {
        std::cerr << "zentrox: " << error.what() << '\n';
        return 1;
    }
}
