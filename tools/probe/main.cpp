// zentrox-probe: the whole game with no screen and no sound, played by a walk.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <iterator>
#include <sstream>
#include <utility>

#include "author/walkwriter.h"
#include "comfort/comforts.h"
#include "comfort/desk.h"
#include "comfort/games.h"
#include "comfort/hands.h"
#include "comfort/keepsakes.h"
#include "comfort/pictures.h"
#include "comfort/talk.h"
#include "engine/interpreter/verteiler.h"
#include "main/beginning.h"
#include "main/report.h"
#include "main/spiel.h"
#include "platform/codec/apart/handlers.h"
#include "platform/codec/zip.h"
#include "platform/machine/replace_file.h"
#include "platform/machine/system.h"
#include "platform/machine/whole_file.h"
#include "platform/probe/recorder.h"
#include "platform/values/error.h"
#include "tools/completion/completion.h"
#include "tools/probe/comfort.h"
#include "tools/probe/player.h"
#include "tools/probe/ran.h"
#include "tools/probe/story.h"

namespace {

namespace fs = std::filesystem;
using namespace zentrox;

constexpr int failed = 1;
constexpr int unreadable = 2;

struct Options {
    std::string directory;
    std::string saves;
    std::vector<std::string> roots;
    std::string arguments;
    Beginning beginning;
    std::string record;
    std::string pictures = ".";
    std::string ran;
    std::string settings;
    bool goesOn = false;
    Milliseconds clock = 0;
    unsigned timeout = 600;
    bool quiet = false;
    std::string walk = "-";
};

std::string readWalk(const std::string& name) {
    if (name == "-") return {std::istreambuf_iterator<char>(std::cin), {}};
    auto walk = readFile(name);
    if (!walk) throw probe::WalkError(name + ":0: expected a walk, found no readable file");
    return *std::move(walk);
}

// Who listens to the play, through all its lives.
class Listeners {
public:
    explicit Listeners(const Options& options) : beginner_(options.beginning) {
        if (options.beginning.hasState()) all_.Dazu(beginner_);
        if (!options.ran.empty()) all_.Dazu(ran);
        if (options.record.empty()) return;
        file_.emplace(options.record, false);
        file_->line(walkCall(roomOf(options.beginning, options.arguments), options.beginning));
        all_.Dazu(writer_.emplace(*file_));
    }
    // A life begins; both null: it is over.
    void watch(Platform* platform, Zustand* state) {
        beginner_.watch(platform, state);
        if (state != nullptr) ran.watch(state);
        if (writer_) writer_->watch(platform, state);
    }
    bool sees(const Input& input) {
        if (writer_) writer_->sees(input);
        return false;
    }
    Verteiler& all() { return all_; }

    probe::Ran ran;

private:
    Verteiler all_;
    Beginner beginner_;
    std::optional<author::RecordFile> file_;
    std::optional<author::WalkWriter> writer_;
};

// One life of the program, from its first window to its end; gives its exit status.
int live(const Options& options, const Files& files, probe::ProbeBackend& backend, probe::Player& player,
         Listeners& listeners, const Text& arguments, bool goesOn) {
    backend.beginAnew();
    const auto fonts = makeFonts();
    Recorder recorder(
        files, [&] { return backend.clock(); },
        [&](Milliseconds at, const Text& line) { backend.trace(at, toUtf8(line)); });
    backend.setClockMoved([&] { recorder.settle(); });
    Platform platform(backend, *fonts, recorder, files);
    platform.roots.assign(options.roots.begin(), options.roots.end());
    Zustand zustand;
    probe::Story story(platform, zustand, recorder);
    player.attach(&platform, &story);
    listeners.watch(&platform, &zustand);
    probe::ProbeComfort machine(backend, recorder);
    std::optional<Comforts> comforts;
    std::optional<Desk> desk;
    std::optional<Screenshots> screenshots;
    std::optional<GameComforts> games;
    std::optional<Report> report;
    std::optional<Hands> hands;
    std::optional<Keepsakes> keepsakes;
    std::optional<Talk> talk;
    Verteiler observers;
    observers.Dazu(listeners.all());
    const auto sees = [&](const Input& input) { return listeners.sees(input); };
    platform.queue.firstLook = sees;
    if (!options.settings.empty()) {
        comforts.emplace(platform, zustand, machine, options.settings);
        desk.emplace(*comforts);
        screenshots.emplace(*comforts, fs::absolute(options.pictures));
        games.emplace(*comforts);
        report.emplace(*comforts, fs::absolute(options.pictures), walkCall(toUtf8(arguments), options.beginning));
        hands.emplace(*comforts);
        keepsakes.emplace(*comforts);
        talk.emplace(*comforts, keepsakes->history());
        comforts->addLook(sees);
        observers.Dazu(comforts->observers());
    }
    Extras extras{.observer = &observers,
                  .saves = keepsakes ? &keepsakes->saves() : nullptr,
                  .aroundGame = games ? games->wrapper() : nullptr};
    if (goesOn && keepsakes && keepsakes->canContinue()) {
        keepsakes->continueWhenOpened();
        extras.withoutMenu = true;
    }
    if (keepsakes) extras.menuStands = [&keepsakes](auto begin) { keepsakes->menuStands(std::move(begin)); };
    const int status = Spielen(platform, zustand, arguments, extras);
    listeners.watch(nullptr, nullptr);
    player.attach(nullptr, nullptr);
    backend.setClockMoved(nullptr);
    // Data that is missing is a fault of the story, though the game goes on without it.
    return status == 0 && !zustand.GemeldeteMängel.empty() ? failed : status;
}

// A directory that goes with the process, for the saved games of a packed story.
class Scratch {
public:
    Scratch() : path_(fs::temp_directory_path() / ("zentrox-probe-" + std::to_string(getpid()))) {}
    ~Scratch() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

Files filesOf(const Options& options, const Scratch& scratch) {
    Files files = openStory(options.directory);
    if (!options.saves.empty())
        files.keepSavesIn(options.saves);
    else if (!fs::is_directory(options.directory))
        files.keepSavesIn(scratch.path());
    return files;
}

// What has run is told of a walk that failed, too.
void tellWhatRan(const Options& options, const probe::Ran& ran) {
    if (options.ran.empty()) return;
    std::ostringstream lines;
    ran.write(lines);
    try {
        replaceFile(options.ran, lines.str());
    } catch (const std::system_error& error) {
        throw probe::WalkError(options.ran + ": " + error.code().message());
    }
}

// A story that has ended with a box which the walk did not look for has failed.
void needNoFailure(int status, const probe::ProbeBackend& backend, const probe::Player& player) {
    if (status == 0 || backend.lastBox() == nullptr || backend.boxExpected) return;
    throw probe::WalkFailure{player.place() + ": expected the story to go on, found the failure \"" +
                             probe::onOneLine(backend.lastBox()->text) + '"'};
}

int play(const Options& options) {
    probe::Walk walk = probe::parseWalk(options.walk, readWalk(options.walk));
    fs::create_directories(options.pictures);
    // The game's paths are relative to the program's directory; the walk's pictures are not.
    const fs::path pictures = fs::absolute(options.pictures);
    probe::ProbeBackend backend(options.beginning.seed.value_or(1), options.quiet ? nullptr : &std::cout,
                                options.clock);
    probe::Player player(std::move(walk), backend, pictures, std::cout, std::chrono::seconds(options.timeout));
    backend.setPerson(&player);
    const Scratch scratch;
    const Files files = filesOf(options, scratch);
    checkBeginning(options.beginning, files);
    Listeners listeners(options);
    int result = 0;
    try {
        Text arguments = fromUtf8(roomOf(options.beginning, options.arguments));
        bool goesOn = options.goesOn;
        do {
            const int status = live(options, files, backend, player, listeners, std::exchange(arguments, {}),
                                    std::exchange(goesOn, false));
            needNoFailure(status, backend, player);
        } while (backend.restartWanted() && !player.over());
        backend.trace("end");
        player.finish();
    } catch (const probe::WalkFailure& failure) {
        std::cout.flush();
        std::cerr << failure.message << '\n';
        result = failed;
    }
    tellWhatRan(options, listeners.ran);
    return result;
}

// The options that the first remark of a recorded walk names; empty if it is none.
std::string callOf(const std::string& walk) {
    constexpr std::string_view begin = "# zentrox-probe ";
    std::istringstream lines(walk == "-" ? std::string() : readFile(walk).value_or(""));
    std::string first;
    std::getline(lines, first);
    return first.starts_with(begin) ? first.substr(begin.size()) : std::string();
}

int readOptions(CLI::App& app, Options& options, int argc, char** argv) {
    app.add_option("--dir", options.directory,
                   "The program's directory: where the data directories and saves lie; or a packed story");
    app.add_option("--saves", options.saves, "Where saved games lie, if not there");
    app.add_option("--root", options.roots, "A root to search for the CD's marker file; may be repeated")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.add_option("--args", options.arguments, "The game's command line, a room file name");
    addBeginning(app, options.beginning);
    app.add_option("--record", options.record,
                   "Writes down what is played as a walk, in as few words as there are");
    app.add_option("--out", options.pictures, "Where shot writes");
    app.add_option("--ran", options.ran, "Writes which instructions have run, for zentrox-story coverage");
    app.add_option("--settings", options.settings, "Plays with the player's comforts, by this file of settings")
        ->group("");
    app.add_option("--clock", options.clock, "What the machine's clock shows at the beginning, in milliseconds")
        ->group("");
    app.add_flag("--continue", options.goesOn, "With these, goes on where the last play ended")->group("");
    app.add_option("--timeout", options.timeout, "Seconds of real time after which the walk fails")
        ->capture_default_str();
    app.add_flag("--quiet", options.quiet, "No trace, only what say prints and what fails");
    bool asRecorded = false;
    app.add_flag("--as-recorded", asRecorded, "Begins as the walk's first remark says, which a record writes");
    app.add_option("WALK", options.walk, "A file, or - for standard input");
    app.set_version_flag("--version", "zentrox-probe " ZENTROX_VERSION);
    addWordsFor(app);
    try {
        app.parse(argc, argv);
        if (asRecorded) app.parse(callOf(options.walk), false);
    } catch (const CLI::Success& shown) {
        app.exit(shown);
        return -1;
    } catch (const CLI::ParseError& error) {
        app.exit(error);
        return unreadable;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Plays a walk through a story, without screen and sound.", "zentrox-probe"};
    Options options;
    options.directory = zentrox::programDirectory().string();
    if (const int result = readOptions(app, options, argc, argv)) return result < 0 ? 0 : result;
    if (!fs::exists(options.directory)) {
        std::cerr << options.directory << ": expected a directory, found none\n";
        return unreadable;
    }
    const zentrox::apart::Apart decoders(zentrox::apart::handlers(), zentrox::apart::ofProbes);
    try {
        return play(options);
    } catch (const probe::WalkError& error) {
        std::cerr << error.what() << '\n';
        return unreadable;
    } catch (const DataError& error) {
        std::cerr << toUtf8(error.message()) << '\n';
        return unreadable;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return unreadable;
    }
}
