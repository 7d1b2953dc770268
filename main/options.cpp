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

// What stands on the command line, as it stands there.
struct Words {
    std::string directory;
    std::string saves;
    std::string record;
    std::string author;
    std::vector<std::string> roots;
    std::vector<std::string> room;
};

void describeStory(CLI::App& app, Words& words, Options& options) {
    app.add_option("--dir", words.directory,
                   "Where the data directories and the saved games lie; or a packed story")
        ->type_name("DIR")
        ->take_last()
        ->check(CLI::Validator(CLI::ExistingPath).description(""));
    app.add_option("--root", words.roots,
                   "A directory to take for the CD, in place of one that is mounted; may be repeated")
        ->type_name("DIR")
        ->expected(1)
        ->allow_extra_args(false)
        ->take_all()
        ->check(CLI::Validator(CLI::ExistingDirectory).description(""));
    app.add_option("--saves", words.saves,
                   "Where the saved games lie, if not with the data or in the player's own place")
        ->type_name("DIR")
        ->take_last();
    app.add_flag("--portable", options.portable, "Writes nothing outside of the directory that the story lies in");
}

void describeWork(CLI::App& app, Words& words, Options& options) {
    app.add_option("--author", words.author,
                   "Plays from these sources of a story, and compiles and shows what is changed in them")
        ->type_name("STORY")
        ->take_last()
        ->check(CLI::Validator(CLI::ExistingPath).description(""));
    app.add_flag("--panel", options.panel, "With --author: opens the workbench's window at once");
    app.add_option("--record", words.record, "Writes down what is played as a walk, for zentrox-probe")
        ->type_name("FILE")
        ->take_last();
    app.add_flag("--record-on", options.recordGoesOn)->group("");
}

void describe(CLI::App& app, Words& words, Options& options) {
    app.set_help_flag("--help", "Shows this and ends");
    app.set_version_flag("--version", "zentrox " ZENTROX_VERSION, "Shows the version and ends");
    describeStory(app, words, options);
    addBeginning(app, options.beginning);
    describeWork(app, words, options);
    app.add_flag("--no-sound", options.noSound, "Plays without sound, also where the machine has none");
    app.add_flag("--continue", options.goesOn, "Goes on where the last play ended, if saving by itself is on");
    app.add_option(
           "ROOM", words.room,
           "A packed story, FILE.zentrox, or the file name of a room; the game then begins there, without its "
           "menu")
        ->type_name("");
    app.footer(
        "F11 or Alt+Enter switches to full screen and back; F8 goes through the ways of enlarging the picture:\n"
        "by whole multiples, as large as fits and sharp, as large as fits and smooth.\n"
        "F10 opens the settings, F3 shows all keys. ZENTROX_SOUND=none in the environment is --no-sound.");
    addWordsFor(app);
}

// Takes the words as places in the file system. A packed story may stand where a room does.
void understand(Words words, const fs::path& programDirectory, Options& options) {
    if (words.directory.empty() && !words.room.empty() && isPackedStory(words.room.front())) {
        words.directory = words.room.front();
        words.room.erase(words.room.begin());
    }
    options.storyNamed = !words.directory.empty();
    options.directory = options.storyNamed ? whole(words.directory) : programDirectory;
    options.commandLine = roomOf(options.beginning, joined(words.room));
    if (!words.author.empty()) options.author = whole(words.author);
    if (!words.record.empty()) options.record = whole(words.record);
    if (!words.saves.empty()) options.saves = whole(words.saves);
    for (const std::string& root : words.roots) options.roots.push_back(whole(root));
}

}  // namespace

Call readOptions(int count, const char* const* words, const fs::path& programDirectory) {
    CLI::App app("Plays the story in the program's directory, or in DIR.", "zentrox");
    Words typed;
    Options options;
    describe(app, typed, options);
    try {
        app.parse(count, words);
    } catch (const CLI::ParseError& error) {
        return {std::nullopt, app.exit(error) == 0 ? 0 : wrongCall};
    }
    understand(std::move(typed), programDirectory, options);
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
