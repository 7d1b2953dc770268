#include "tools/story/commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <set>

#include "platform/error.h"
#include "tools/story/build.h"
#include "tools/story/check.h"
#include "tools/story/coverage.h"
#include "tools/story/data.h"
#include "tools/story/fresh.h"
#include "tools/story/parser.h"
#include "tools/story/reference.h"
#include "tools/story/source.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

// What the command line cannot mean. The text tells why.
struct WrongCall {
    std::string why;
};

struct Options {
    std::vector<std::string> words;
    std::string into;
    std::string data;
    bool json = false;
    std::vector<std::string> ran;
    double least = 0;
};

struct Streams {
    std::ostream& out;
    std::ostream& err;
};

// --- what lies where

std::vector<fs::path> sourcesIn(const fs::path& directory) {
    std::vector<fs::path> inside;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(directory, error))
        if (entry.path().extension() == ".story" && entry.is_regular_file(error)) inside.push_back(entry.path());
    std::sort(inside.begin(), inside.end());
    return inside;
}

void needAll(const std::vector<std::string>& words) {
    std::error_code error;
    for (const std::string& word : words)
        if (!fs::exists(word, error)) throw WrongCall{"there is no " + word};
}

// Files as they are, directories as the sources that lie directly in them.
std::vector<fs::path> sourcesOf(const std::vector<std::string>& words) {
    needAll(words);
    std::vector<fs::path> sources;
    std::error_code error;
    for (const std::string& word : words) {
        if (!fs::is_directory(word, error)) {
            sources.emplace_back(word);
            continue;
        }
        const auto inside = sourcesIn(word);
        if (inside.empty()) throw WrongCall{"there is no source (*.story) in " + word};
        sources.insert(sources.end(), inside.begin(), inside.end());
    }
    return sources;
}

// The sources beside these that are not among them: the rest of the story, most likely.
std::vector<fs::path> neighboursOf(const std::vector<fs::path>& sources) {
    std::set<fs::path> known;
    std::set<fs::path> directories;
    for (const fs::path& source : sources) {
        known.insert(fs::absolute(source).lexically_normal());
        directories.insert(fs::absolute(source).lexically_normal().parent_path());
    }
    std::vector<fs::path> neighbours;
    for (const fs::path& directory : directories)
        for (const fs::path& path : sourcesIn(directory))
            if (!known.contains(path)) neighbours.push_back(path);
    return neighbours;
}

bool isDataFile(const fs::path& path) {
    const Text extension = lower(path.extension().native());
    return extension == ".lsd" || extension == ".skp";
}

// Without fonts everything but the size of texts can still be looked at.
std::unique_ptr<Fonts> fontsIfAny() {
    try {
        auto fonts = makeFonts();
        fonts->get(FontSpec{});
        return fonts;
    } catch (const std::exception&) {
        return nullptr;
    }
}

// --- the commands

int build(const Options& options, const Streams& to) {
    Findings findings;
    SourceFiles files;
    const Story story = parseSources(sourcesOf(options.words), files, findings);
    checkForBuild(story, findings);
    findings.settle(story);
    to.err << asLines(story, findings);
    if (findings.hasErrors()) return hasFindings;
    for (const fs::path& path : writeStory(story, options.into)) to.out << path.string() << "\n";
    return clean;
}

// What is checked, what else is known of the story, and where its data lies.
struct Checked {
    Story story;
    Story rest;
    fs::path root;
    bool wholeStory = true;
};

void readDataFiles(const std::vector<std::string>& words, Checked& checked, Findings& findings) {
    for (const std::string& word : words) readDataFile(word, checked.story, findings);
    checked.root = dataDirectoryOf(words.front());
    checked.wholeStory = !checked.root.empty();
    Findings ignored;
    if (checked.wholeStory) readDataDirectory(checked.root, checked.rest, ignored);
    checked.wholeStory = checked.wholeStory && !ignored.hasBroken();
}

void readSources(const std::vector<std::string>& words, Checked& checked, Findings& findings) {
    const auto sources = sourcesOf(words);
    SourceFiles files;
    Findings ignored;
    checked.story = parseSources(sources, files, findings);
    checked.rest = parseSources(neighboursOf(sources), files, ignored);
    checked.wholeStory = !ignored.hasBroken();
    checked.root = dataRootOf(sources.front());
}

Checked readChecked(const std::vector<std::string>& words, Findings& findings) {
    needAll(words);
    Checked checked;
    const fs::path first = words.front();
    std::error_code error;
    const bool isData = fs::is_directory(first, error) && sourcesIn(first).empty() && isDataDirectory(first);
    if (isData && words.size() > 1) throw WrongCall{"one data directory at a time"};
    if (isData) {
        readDataDirectory(first, checked.story, findings);
        checked.root = first;
    } else if (isDataFile(first)) {
        readDataFiles(words, checked, findings);
    } else {
        readSources(words, checked, findings);
    }
    return checked;
}

int check(const Options& options, const Streams& to) {
    if (!options.data.empty()) needAll({options.data});
    Findings findings;
    const Checked checked = readChecked(options.words, findings);
    const fs::path root = options.data.empty() ? checked.root : fs::path(options.data);
    const auto data = root.empty() ? nullptr : std::make_unique<DataFiles>(root);
    const auto fonts = fontsIfAny();
    check(checked.story, {&checked.rest, data.get(), fonts.get(), checked.wholeStory}, findings);
    findings.settle(checked.story);
    to.out << (options.json ? asJson(checked.story, findings) : asLines(checked.story, findings));
    return findings.empty() ? clean : hasFindings;
}

int source(const Options& options, const Streams& to) {
    needAll(options.words);
    Story story;
    Findings findings;
    std::vector<Text> pictures;
    for (const std::string& word : options.words) {
        std::error_code error;
        const bool whole = fs::is_directory(word, error);
        if (whole && !isDataDirectory(word)) throw WrongCall{"there are no rooms and no items in " + word};
        if (!whole && !isDataFile(word)) throw WrongCall{word + " is no room (.lsd) and no script (.skp)"};
        whole ? readDataDirectory(word, story, findings) : readDataFile(word, story, findings);
        const fs::path root = whole ? fs::path(word) : dataDirectoryOf(word);
        if (pictures.empty() && !root.empty()) pictures = Files(root).list("items\\");
    }
    findings.settle(story);
    to.err << asLines(story, findings);
    const char* gap = "";
    for (const auto& [name, text] : sourceFiles(story, pictures)) {
        if (!options.into.empty()) {
            const fs::path path = fs::path(options.into) / fs::u8path(name);
            if (writeIfChanged(path, text)) to.out << path.string() << "\n";
        } else {
            to.out << gap << text;
            gap = "\n";
        }
    }
    return findings.empty() ? clean : hasFindings;
}

int coverage(const Options& options, const Streams& to) {
    needAll(options.ran);
    Findings findings;
    SourceFiles files;
    const Story story = parseSources(sourcesOf(options.words), files, findings);
    findings.settle(story);
    if (findings.hasErrors()) {
        to.err << asLines(story, findings);
        return hasFindings;
    }
    Coverage coverage(story);
    for (const std::string& name : options.ran)
        if (!coverage.add(files.read(name).value_or("")))
            throw WrongCall{name + " was not written by a walk through this story as it stands"};
    to.out << coverage.report(files);
    return coverage.percent() < options.least ? hasFindings : clean;
}

int fresh(const Options& options, const Streams& to) {
    const fs::path directory = options.words.front();
    writeFreshStory(directory);
    to.out << "Eine kleine Geschichte liegt in " << directory.string() << ":\n"
           << "  übersetzen  zentrox-story build " << (directory / "story").string() << " --into "
           << directory.string() << "\n"
           << "  spielen     zentrox --dir " << directory.string() << "\n"
           << "  prüfen      zentrox-probe --dir " << directory.string() << " "
           << (directory / "walks/start.walk").string() << "\n";
    return clean;
}

int reference(const Options& /*options*/, const Streams& to) {
    to.out << referencePage();
    return clean;
}

// --- the command line

using Command = int (*)(const Options&, const Streams&);

struct Chosen {
    Options options;
    Command command = nullptr;
};

void describe(CLI::App& app, Chosen& chosen) {
    Options& options = chosen.options;
    app.set_version_flag("--version", "zentrox-story " ZENTROX_VERSION);
    app.require_subcommand(1);
    const auto add = [&](const char* name, const char* text, Command command) {
        CLI::App* const sub = app.add_subcommand(name, text);
        sub->callback([&chosen, command] { chosen.command = command; });
        return sub;
    };
    CLI::App* sub = add("build", "compile sources into rooms/*.lsd and items/*.skp", build);
    sub->add_option("SOURCE", options.words, "source files, or directories of *.story")->required();
    sub->add_option("--into", options.into, "the data directory to write to")->required();

    sub = add("check", "tell what is wrong with sources or compiled data", check);
    sub->add_option("SOURCE-or-DIR", options.words, "source files, a directory of them, or a data directory")
        ->required();
    sub->add_option("--data", options.data, "where the pictures, sounds and so on lie, if not beside the sources");
    sub->add_flag("--json", options.json, "findings for machines");

    sub = add("source", "turn compiled rooms and scripts into sources", source);
    sub->add_option("DIR-or-FILE", options.words, "data directories, rooms, scripts")->required();
    sub->add_option("--into", options.into, "write one .story file a room and one for the items to this directory");

    sub = add("coverage", "tell which lines of a story no walk has run", coverage);
    sub->add_option("SOURCE", options.words, "source files, or directories of *.story")->required();
    sub->add_option("--ran", options.ran, "what zentrox-probe --ran has written, of each walk a file")->required();
    sub->add_option("--least", options.least, "percent of the lines that have to run")->check(CLI::Range(0, 100));

    sub = add("new", "make a small story to begin with", fresh);
    sub->add_option("DIR", options.words, "a directory that is empty or not there yet")->required()->expected(1);

    add("opcodes", "print the reference page of the commands", reference);
}

}  // namespace

int run(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
    CLI::App app("Makes the data files of a story from readable sources, checks them, and reads them back.",
                 "zentrox-story");
    Chosen chosen;
    describe(app, chosen);
    try {
        std::reverse(arguments.begin(), arguments.end());
        app.parse(arguments);
        return chosen.command(chosen.options, {out, err});
    } catch (const CLI::ParseError& error) {
        return app.exit(error, out, err) == 0 ? clean : wrongCall;
    } catch (const WrongCall& call) {
        err << "zentrox-story: " << call.why << "\n";
    } catch (const fs::filesystem_error& error) {
        err << "zentrox-story: " << error.path1().string() << ": " << error.code().message() << "\n";
    }
    return wrongCall;
}

}  // namespace zentrox::story
