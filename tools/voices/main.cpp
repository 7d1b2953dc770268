// zentrox-voices: speaks the lines of a story.
#include <CLI/CLI.hpp>
#include <iostream>

#include "platform/machine/whole_file.h"
#include "tools/completion/completion.h"
#include "tools/story/inputs.h"
#include "tools/story/parser.h"
#include "tools/voices/maker.h"
#include "tools/voices/spoken.h"

namespace {

namespace fs = std::filesystem;
using namespace zentrox;

constexpr int faulty = 1;
constexpr int badCall = 2;

struct Options {
    fs::path table;
    fs::path story;
    fs::path into;
    fs::path work;
};

voices::Table tableFrom(const fs::path& path) {
    return voices::readTable(readFile(path).value_or(""));
}

// The lines of the story; nothing if there is something wrong with it, which then has been told.
std::optional<std::vector<voices::SpokenLine>> linesFrom(const Options& options, const voices::Table& table) {
    story::Findings findings;
    story::SourceFiles files;
    const story::Story story = story::parseSources(story::sourcesOf({options.story.string()}), files, findings);
    auto lines = voices::linesOf(story, table, findings);
    findings.settle(story);
    std::cerr << story::asLines(story, findings);
    if (findings.hasErrors()) return std::nullopt;
    return lines;
}

int list(const Options& options) {
    const voices::Table table = tableFrom(options.table);
    const auto lines = linesFrom(options, table);
    if (!lines) return faulty;
    for (const auto& line : *lines)
        std::cout << line.file << "\t" << toUtf8(voices::spoken(line.text, table.words)) << "\n";
    return 0;
}

int make(const Options& options) {
    const voices::Table table = tableFrom(options.table);
    const auto lines = linesFrom(options, table);
    if (!lines) return faulty;
    const auto made = voices::makeLines(*lines, table, options.into, options.work, voices::speakerOf(table));
    for (const std::string& why : made.failed) std::cerr << why << "\n";
    std::cout << made.written.size() << " lines spoken, " << made.removed.size() << " taken away, of "
              << lines->size() << "\n";
    return made.failed.empty() ? 0 : faulty;
}

}  // namespace

int main(int count, char** arguments) {
    CLI::App app("Speaks the lines of a story.", "zentrox-voices");
    app.set_version_flag("--version", "zentrox-voices " ZENTROX_VERSION);
    app.require_subcommand(1);
    Options options;
    const auto add = [&](const char* name, const char* text) {
        CLI::App* const sub = app.add_subcommand(name, text);
        sub->add_option("TABLE", options.table, "the table of voices")->required()->check(CLI::ExistingFile);
        sub->add_option("STORY", options.story, "directory of *.story")->required()->check(CLI::ExistingDirectory);
        return sub;
    };
    const CLI::App* const listing = add("list", "check the pairs of sound and text, and print what is said");
    CLI::App* const making = add("make", "make the sound files of lines that have changed");
    making->add_option("--into", options.into, "the directory of sounds")->required();
    making->add_option("--work", options.work, "a directory of our own for what lies between")->required();
    addWordsFor(app);
    try {
        app.parse(count, arguments);
        return listing->parsed() ? list(options) : make(options);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : badCall;
    } catch (const story::WrongCall& call) {
        std::cerr << "zentrox-voices: " << call.why << "\n";
        return badCall;
    } catch (const voices::TableError& error) {
        std::cerr << options.table.string() << ":" << error.line << ": " << error.what() << "\n";
    } catch (const std::exception& error) {
        std::cerr << "zentrox-voices: " << error.what() << "\n";
    }
    return faulty;
}
