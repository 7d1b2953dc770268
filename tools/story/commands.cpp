#include "tools/story/commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "platform/machine/system.h"
#include "platform/values/error.h"
#include "tools/completion/completion.h"
#include "tools/editors/grammars.h"
#include "tools/lsp/server.h"
#include "tools/reasons/reasons.h"
#include "tools/story/build.h"
#include "tools/story/check.h"
#include "tools/story/coverage.h"
#include "tools/story/data.h"
#include "tools/story/format.h"
#include "tools/story/fresh.h"
#include "tools/story/german.h"
#include "tools/story/inputs.h"
#include "tools/story/lines.h"
#include "tools/story/options.h"
#include "tools/story/pack.h"
#include "tools/story/parser.h"
#include "tools/story/reference.h"
#include "tools/story/source.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

struct Streams {
    std::ostream& out;
    std::ostream& err;
};

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
    const auto sources = sourcesOf(options.words);
    Story story = parseSources(sources, files, findings, neighboursOf(sources));
    if (!options.with.empty()) {
        needAll({options.with});
        story.files.push_back(options.with);
        replaceTexts(story, files.read(options.with).value_or(""), static_cast<int>(story.files.size()) - 1,
                     findings);
    }
    checkForBuild(story, findings);
    findings.settle(story);
    to.err << asLines(story, findings);
    if (findings.hasErrors()) return hasFindings;
    if (!story.voiceTable.path.empty() && writeIfChanged(story.voiceTable.path, story.voiceTable.text))
        to.out << story.voiceTable.path.string() << "\n";
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

void readData(const DataInputs& data, Checked& checked, Findings& findings) {
    if (data.directories.size() + (data.files.empty() ? 0 : 1) > 1)
        throw WrongCall{"nur ein Datenverzeichnis auf einmal"};
    if (data.files.empty()) {
        checked.root = data.directories.front();
        return readDataDirectory(checked.root, checked.story, findings);
    }
    for (const fs::path& file : data.files) readDataFile(file, checked.story, findings);
    checked.root = dataDirectoryOf(data.files.front());
    Findings ignored;
    if (!checked.root.empty()) readDataDirectory(checked.root, checked.rest, ignored);
    checked.wholeStory = !checked.root.empty() && !ignored.hasBroken();
}

void readSources(const std::vector<std::string>& words, Checked& checked, Findings& findings) {
    const auto sources = sourcesOf(words);
    SourceFiles files;
    Findings ignored;
    const auto neighbours = neighboursOf(sources);
    checked.story = parseSources(sources, files, findings, neighbours);
    checked.rest = parseSources(neighbours, files, ignored, sources);
    checked.wholeStory = !ignored.hasBroken();
    checked.root = dataRootOf(sources.front());
}

int check(const Options& options, const Streams& to) {
    if (!options.data.empty()) needAll({options.data});
    Findings findings;
    Checked checked;
    const DataInputs inputs = dataOf(options.words);
    const bool sources = inputs.directories.empty() && inputs.files.empty();
    if (sources)
        readSources(options.words, checked, findings);
    else
        readData(inputs, checked, findings);
    const fs::path root = options.data.empty() ? checked.root : fs::path(options.data);
    const auto data = root.empty() ? nullptr : std::make_unique<DataFiles>(root);
    if (!data)
        to.err
            << "zentrox-story: neben " << options.words.front()
            << " liegen keine Daten, darum wurden keine Bilder und Töne gesucht; wo sie liegen, sagt --data DIR\n";
    const auto fonts = fontsIfAny();
    Surroundings around{&checked.rest, data.get(), fonts.get()};
    around.wholeGame = inputs.files.empty();
    around.fromSources = sources;
    around.wholeStory = checked.wholeStory;
    check(checked.story, around, findings);
    findings.settle(checked.story);
    to.out << (options.json ? asJson(checked.story, findings) : asLines(checked.story, findings));
    if (options.games && !options.json && !findings.hasErrors()) prove::tellGames(checked.story, to.out, to.err);
    return findings.empty() ? clean : hasFindings;
}

int lines(const Options& options, const Streams& to) {
    Findings findings;
    Checked checked;
    const DataInputs inputs = dataOf(options.words);
    if (inputs.directories.empty() && inputs.files.empty())
        readSources(options.words, checked, findings);
    else
        readData(inputs, checked, findings);
    findings.settle(checked.story);
    to.err << asLines(checked.story, findings);
    const auto texts = textsOf(checked.story);
    to.out << (options.json ? linesAsJson(checked.story, texts) : asTable(checked.story, texts));
    return findings.hasErrors() ? hasFindings : clean;
}

int source(const Options& options, const Streams& to) {
    const DataInputs data = dataOf(options.words);
    if (data.directories.empty() && data.files.empty())
        throw WrongCall{options.words.front() + " ist kein übersetzter Raum (.lsd) und kein Skript (.skp)"};
    Story story;
    Findings findings;
    std::vector<Text> pictures;
    const auto notePictures = [&](const fs::path& root) {
        if (pictures.empty() && !root.empty()) pictures = Files(root).list(verzeichnis(Ordner::items));
    };
    for (const fs::path& directory : data.directories) {
        readDataDirectory(directory, story, findings);
        notePictures(directory);
    }
    for (const fs::path& file : data.files) {
        readDataFile(file, story, findings);
        notePictures(dataDirectoryOf(file));
    }
    findings.settle(story);
    to.err << asLines(story, findings);
    const char* gap = "";
    for (const auto& [name, text] : sourceFiles(story, pictures)) {
        if (!options.into.empty()) {
            const fs::path path = fs::path(options.into) / fs::path(name);
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
    const auto sources = sourcesOf(options.words);
    const Story story = parseSources(sources, files, findings, neighboursOf(sources));
    findings.settle(story);
    if (findings.hasErrors()) {
        to.err << asLines(story, findings);
        return hasFindings;
    }
    Coverage coverage(story);
    for (const std::string& name : options.ran)
        if (!coverage.add(files.read(name).value_or("")))
            throw WrongCall{name + " stammt von keinem Gang durch diese Geschichte, wie sie jetzt dasteht"};
    to.out << coverage.report(files);
    return coverage.percent() < options.least ? hasFindings : clean;
}

int prove(const Options& options, const Streams& to) {
    Findings findings;
    Story story;
    const DataInputs inputs = dataOf(options.words);
    if (inputs.directories.empty() && inputs.files.empty()) {
        SourceFiles files;
        const auto sources = sourcesOf(options.words);
        story = parseSources(sources, files, findings, neighboursOf(sources));
        checkForBuild(story, findings);
    } else {
        Checked checked;
        readData(inputs, checked, findings);
        story = std::move(checked.story);
    }
    findings.settle(story);
    prove::Call call = options.prove;
    call.json = options.json;
    return prove::run(story, findings, call, to.out, to.err);
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

int packed(const Options& options, const Streams& to) {
    return pack({options.words.front(), options.into, options.program, options.player}, to.out, to.err);
}

int format(const Options& options, const Streams& to) {
    SourceFiles files;
    bool allRead = true;
    std::size_t other = 0;
    for (const fs::path& path : sourcesOf(options.words)) {
        const auto text = files.read(path);
        const auto well = text ? formatted(*text) : std::nullopt;
        if (!well)
            to.err << "zentrox-story: " << path.string() << " lässt sich nicht als UTF-8 lesen\n";
        else if (*well != *text)
            to.out << path.string() << "\n";
        allRead = allRead && well;
        if (!well || *well == *text) continue;
        ++other;
        if (!options.onlyTell) writeIfChanged(path, *well);
    }
    return allRead && (other == 0 || !options.onlyTell) ? clean : hasFindings;
}

int server(const Options& options, const Streams& to) {
    if (!options.data.empty()) needAll({options.data});
    return lsp::serve(std::cin, to.out, options.data);
}

int grammar(const Options& options, const Streams& to) {
    const std::string& editor = options.words.front();
    to.out << (editor == "vim"    ? editors::vimSyntax()
               : editor == "kate" ? editors::kateSyntax()
                                  : editors::textMateGrammar());
    return clean;
}

int reference(const Options& /*options*/, const Streams& to) {
    to.out << referencePage();
    return clean;
}

int browserPage(const Options& options, const Streams& to) {
    web::Order order = options.web;
    needAll({order.story.string()});
    if (order.engine.empty()) order.engine = web::engineFor(programDirectory());
    if (order.engine.empty())
        throw WrongCall{"der Kern für den Browser ist nicht da; ./web macht ihn, --engine DIR sagt, wo er liegt"};
    return web::pack(order, to.out, to.err) ? clean : hasFindings;
}

int storyPage(const Options& options, const Streams& to) {
    page::write(options.page, to.out, to.err);
    return clean;
}

// --- the command line

using Command = int (*)(const Options&, const Streams&);

struct Chosen {
    Options options;
    Command command = nullptr;
};

// In the order in which the help names them.
struct Entry {
    const char* name;
    const char* purpose;
    Command command;
    void (*describe)(CLI::App&, Options&);
};

constexpr Entry entries[] = {
    {"lines", "schreibt jeden Text einmal, als Tabelle: zum Sprechen, Prüfen, Übertragen", lines, describeLines},
    {"build", "übersetzt Quellen in rooms/*.lsd und items/*.skp", build, describeBuild},
    {"check", "sagt, was an Quellen oder übersetzten Daten nicht stimmt", check, describeCheck},
    {"source", "macht aus übersetzten Räumen und Skripten Quellen", source, describeSource},
    {"prove", "spielt alle Spiele durch: Enden, Sackgassen, was nie geschieht", prove, describeProve},
    {"web", "macht aus einer Geschichte eine Seite, die jeder Browser spielt", browserPage, describeWeb},
    {"page", "macht aus einer Geschichte eine Seite zum Ansehen: Karte, Räume, Texte", storyPage, describePage},
    {"format", "setzt Quellen, wie sie alle gesetzt sind: Einrückung, Abstände, Schreibung", format,
     describeFormat},
    {"lsp", "bedient einen Editor: Befunde, Ergänzung, Hilfe, Sprünge, Umbenennen", server, describeServer},
    {"grammar", "druckt die Sprache, wie ein Editor sie einfärbt", grammar, describeGrammar},
    {"coverage", "sagt, welche Zeilen einer Geschichte kein Gang gelaufen ist", coverage, describeCoverage},
    {"new", "legt eine kleine Geschichte an, zum Anfangen", fresh, describeFresh},
    {"pack", "macht aus einer Geschichte eine Datei, die das Spiel so spielt, wie sie ist", packed, describePack},
    {"opcodes", "druckt die Seite mit allen Befehlen", reference, nullptr},
};

void describe(CLI::App& app, Chosen& chosen) {
    speakGerman(app);
    app.set_version_flag("--version", "zentrox-story " ZENTROX_VERSION, "zeigt die Version und endet");
    app.require_subcommand(1);
    for (const Entry& entry : entries) {
        CLI::App* const sub = app.add_subcommand(entry.name, entry.purpose);
        sub->group("Befehle");
        speakGerman(*sub);
        sub->callback([&chosen, &entry] { chosen.command = entry.command; });
        if (entry.describe != nullptr) entry.describe(*sub, chosen.options);
    }
}

}  // namespace

int run(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
    CLI::App app("Macht aus lesbaren Quellen die Datendateien einer Geschichte, prüft sie und liest sie zurück.",
                 "zentrox-story");
    Chosen chosen;
    describe(app, chosen);
    addWordsFor(app);
    try {
        std::reverse(arguments.begin(), arguments.end());
        app.parse(arguments);
        return chosen.command(chosen.options, {out, err});
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error, out, err) == 0 ? clean : wrongCall;
        err << "zentrox-story: " << inGerman(error) << "; mehr sagt zentrox-story --help\n";
    } catch (const WrongCall& call) {
        err << "zentrox-story: " << call.why << "\n";
    } catch (const fs::filesystem_error& error) {
        err << "zentrox-story: " << error.path1().string() << ": " << reasonInGerman(error.code()) << "\n";
    }
    return wrongCall;
}

}  // namespace zentrox::story
