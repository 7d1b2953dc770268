#include "main/options.h"

#include <CLI/CLI.hpp>

#include "tools/completion/completion.h"

namespace zentrox {

namespace {

namespace fs = std::filesystem;

constexpr int wrongCall = 2;

fs::path whole(const fs::path& path) {
    std::error_code error;
    return fs::absolute(path, error).lexically_normal();
}

bool isPackedStory(const fs::path& path) {
    std::error_code error;
    return path.extension() == ".zentrox" && fs::is_regular_file(path, error);
}

// Words that name no option are the game's, with blanks between them as they were typed.
std::string joined(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
    return line;
}

}  // namespace

Call readOptions(int count, const char* const* words, const fs::path& programDirectory) {
    CLI::App app("Plays the story in the program's directory, or in DIR.", "zentrox");
    std::string directory;
    std::string saves;
    std::string record;
    std::string author;
    Options options;
    bool portable = false;
    bool noSound = false;
    bool goesOn = false;
    std::vector<std::string> roots;
    std::vector<std::string> room;
    const CLI::Validator there = CLI::Validator(CLI::ExistingDirectory).description("");
    const CLI::Validator story = CLI::Validator(CLI::ExistingPath).description("");
    app.set_help_flag("--help", "Shows this and ends");
    app.set_version_flag("--version", "zentrox " ZENTROX_VERSION, "Shows the version and ends");
    app.add_option("--dir", directory, "Where the data directories and the saved games lie; or a packed story")
        ->type_name("DIR")
        ->take_last()
        ->check(story);
    app.add_option("--root", roots,
                   "A directory to take for the CD, in place of one that is mounted; may be repeated")
        ->type_name("DIR")
        ->expected(1)
        ->allow_extra_args(false)
        ->take_all()
        ->check(there);
    app.add_option("--saves", saves, "Where the saved games lie, if not with the data or in the player's own place")
        ->type_name("DIR")
        ->take_last();
    app.add_flag("--portable", portable, "Writes nothing outside of the directory that the story lies in");
    addBeginning(app, options.beginning);
    app.add_option("--author", author,
                   "Plays from these sources of a story, and compiles and shows what is changed in them")
        ->type_name("STORY")
        ->take_last()
        ->check(story);
    app.add_flag("--panel", options.panel, "With --author: opens the workbench's window at once");
    app.add_option("--record", record, "Writes down what is played as a walk, for zentrox-probe")
        ->type_name("FILE")
        ->take_last();
    app.add_flag("--record-on", options.recordGoesOn)->group("");
    app.add_flag("--no-sound", noSound, "Plays without sound, also where the machine has none");
    app.add_flag("--continue", goesOn, "Goes on where the last play ended, if saving by itself is on");
    app.add_option(
           "ROOM", room,
           "A packed story, FILE.zentrox, or the file name of a room; the game then begins there, without its "
           "menu")
        ->type_name("");
    app.footer(
        "F11 or Alt+Enter switches to full screen and back; F8 goes through the ways of enlarging the picture:\n"
        "by whole multiples, as large as fits and sharp, as large as fits and smooth.\n"
        "F10 opens the settings, F3 shows all keys. ZENTROX_SOUND=none in the environment is --no-sound.");
    addWordsFor(app);
    try {
        app.parse(count, words);
    } catch (const CLI::ParseError& error) {
        return {std::nullopt, app.exit(error) == 0 ? 0 : wrongCall};
    }
    if (directory.empty() && !room.empty() && isPackedStory(room.front())) {
        directory = room.front();
        room.erase(room.begin());
    }
    options.storyNamed = !directory.empty();
    options.directory = options.storyNamed ? whole(directory) : programDirectory;
    options.commandLine = roomOf(options.beginning, joined(room));
    if (!author.empty()) options.author = whole(author);
    if (!record.empty()) options.record = whole(record);
    if (!saves.empty()) options.saves = whole(saves);
    options.portable = portable;
    options.noSound = noSound;
    options.goesOn = goesOn;
    for (const std::string& root : roots) options.roots.push_back(whole(root));
    return {options, 0};
}

std::vector<fs::path> rootsToSearch(const Options& options, std::vector<fs::path> mounted) {
    mounted.insert(mounted.end(), options.roots.begin(), options.roots.end());
    return mounted;
}

std::vector<std::string> restartCommand(const fs::path& program, const Options& options) {
    std::vector<std::string> command{program.string(), "--dir", options.directory.string()};
    for (const fs::path& root : options.roots) command.insert(command.end(), {"--root", root.string()});
    if (options.saves) command.insert(command.end(), {"--saves", options.saves->string()});
    if (options.noSound) command.emplace_back("--no-sound");
    if (options.portable) command.emplace_back("--portable");
    if (options.author) command.insert(command.end(), {"--author", options.author->string()});
    if (options.panel) command.emplace_back("--panel");
    if (options.record) command.insert(command.end(), {"--record", options.record->string(), "--record-on"});
    return command;
}

}  // namespace zentrox
