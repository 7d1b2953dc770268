#include "tools/story/commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "platform/machine/system.h"
#include "platform/values/error.h"
#include "tools/completion/completion.h"
#include "tools/editors/grammars.h"
#include "tools/lsp/server.h"
#include "tools/page/page.h"
#include "tools/prove/command.h"
#include "tools/story/build.h"
#include "tools/story/check.h"
#include "tools/story/coverage.h"
#include "tools/story/data.h"
#include "tools/story/format.h"
#include "tools/story/fresh.h"
#include "tools/story/german.h"
#include "tools/story/inputs.h"
#include "tools/story/lines.h"
#include "tools/story/pack.h"
#include "tools/story/parser.h"
#include "tools/story/reference.h"
#include "tools/story/source.h"
#include "tools/web/pack.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

struct Options {
    std::vector<std::string> words;
    std::string into;
    std::string data;
    std::string with;
    bool json = false;
    std::vector<std::string> ran;
    double least = 0;
    prove::Call prove;
    web::Order web;
    bool program = false;
    std::string player;
    page::Order page;
    bool onlyTell = false;
    bool games = false;
};

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

CLI::Validator aboveZero() {
    return CLI::Validator(CLI::PositiveNumber).description("über 0");
}

void describeProve(CLI::App& sub, Options& options) {
    prove::Call& call = options.prove;
    sub.add_option("QUELLE-oder-DIR", options.words,
                   "Quellen, ein Verzeichnis mit ihnen, oder ein Datenverzeichnis")
        ->required();
    sub.add_option("--walks", call.walks,
                   "schreibt die kürzesten Gänge zu Enden und Sackgassen in dieses Verzeichnis");
    sub.add_flag("--statistik", call.statistics, "Zustände, Schritte, Wege, und die Räume als Bild für Graphviz");
    sub.add_option("--graph", call.graph, "schreibt dieses Bild in eine Datei");
    sub.add_option("--seconds", call.seconds, "sucht nicht länger als so viele Sekunden")
        ->check(aboveZero())
        ->type_name("ZAHL");
    sub.add_option("--memory", call.megabytes, "nimmt nicht mehr als so viele Megabyte, sonst 2000")
        ->check(aboveZero())
        ->type_name("ZAHL");
    sub.add_option("--limit", call.states, "sieht nicht mehr als so viele Zustände an")
        ->check(aboveZero())
        ->type_name("ZAHL");
    sub.add_flag("--full", call.full, "lässt nichts aus, auch was auf die Antworten keinen Einfluss hat");
    sub.add_flag("--json", options.json, "ein Objekt für Maschinen");
}

void describeWeb(CLI::App& app, Options& options) {
    web::Order& order = options.web;
    app.add_option("DIR", order.story, "das Datenverzeichnis, mit rooms, graphics, sounds und so weiter")
        ->required();
    app.add_option("--into", order.into, "das Verzeichnis der Seite; was neu ist, wird darin auf Stand gebracht")
        ->required();
    app.add_option("--root", order.discs, "ein Verzeichnis, das als CD gilt; auch mehrmals")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.add_option("--title", order.title, "wie die Geschichte auf der Seite heißt");
    app.add_option("--engine", order.engine, "wo der Kern für den Browser liegt");
}

void describePage(CLI::App& app, Options& options) {
    page::Order& order = options.page;
    app.add_option("QUELLE-oder-DIR", order.words, "Quellen, ein Verzeichnis mit ihnen, oder ein Datenverzeichnis")
        ->required();
    app.add_option("--into", order.into, "die Datei, die geschrieben wird, etwa geschichte.html")->required();
    app.add_option("--data", order.data, "wo Bilder, Töne und so weiter liegen, wenn nicht neben den Quellen");
    app.add_option("--ran", order.ran, "was zentrox-probe --ran geschrieben hat; die Zeilen werden danach gefärbt");
    app.add_option("--proof", order.proof, "was zentrox-story prove --json geschrieben hat");
    app.add_option("--title", order.title, "wie die Geschichte auf der Seite heißt");
}

void describe(CLI::App& app, Chosen& chosen) {
    Options& options = chosen.options;
    speakGerman(app);
    app.set_version_flag("--version", "zentrox-story " ZENTROX_VERSION, "zeigt die Version und endet");
    app.require_subcommand(1);
    const auto add = [&](const char* name, const char* text, Command command) {
        CLI::App* const sub = app.add_subcommand(name, text);
        sub->group("Befehle");
        speakGerman(*sub);
        sub->callback([&chosen, command] { chosen.command = command; });
        return sub;
    };
    CLI::App* sub =
        add("lines", "schreibt jeden Text einmal, als Tabelle: zum Sprechen, Prüfen, Übertragen", lines);
    sub->add_option("QUELLE-oder-DIR", options.words,
                    "Quellen, ein Verzeichnis mit ihnen, oder ein Datenverzeichnis")
        ->required();
    sub->add_flag("--json", options.json, "eine Liste für Maschinen");

    sub = add("build", "übersetzt Quellen in rooms/*.lsd und items/*.skp", build);
    sub->add_option("QUELLE", options.words, "Quellen, oder Verzeichnisse mit *.story")->required();
    sub->add_option("--into", options.into, "das Datenverzeichnis, in das geschrieben wird")->required();
    sub->add_option("--with", options.with, "eine Tabelle von lines, deren Texte an die Stelle der eigenen treten");

    sub = add("check", "sagt, was an Quellen oder übersetzten Daten nicht stimmt", check);
    sub->add_option("QUELLE-oder-DIR", options.words,
                    "Quellen, ein Verzeichnis mit ihnen, oder ein Datenverzeichnis")
        ->required();
    sub->add_option("--data", options.data, "wo Bilder, Töne und so weiter liegen, wenn nicht neben den Quellen");
    sub->add_flag("--json", options.json, "Befunde für Maschinen");
    sub->add_flag("--games", options.games, "sagt auch, ohne welche Spiele die Geschichte nicht zu Ende geht");

    sub = add("source", "macht aus übersetzten Räumen und Skripten Quellen", source);
    sub->add_option("DIR-oder-DATEI", options.words, "Datenverzeichnisse, Räume, Skripte")->required();
    sub->add_option("--into", options.into,
                    "schreibt in dieses Verzeichnis: je Raum eine Quelle, für die Gegenstände eine");

    describeProve(*add("prove", "spielt alle Spiele durch: Enden, Sackgassen, was nie geschieht", prove), options);

    describeWeb(*add("web", "macht aus einer Geschichte eine Seite, die jeder Browser spielt", browserPage),
                options);

    describePage(*add("page", "macht aus einer Geschichte eine Seite zum Ansehen: Karte, Räume, Texte", storyPage),
                 options);

    sub = add("format", "setzt Quellen, wie sie alle gesetzt sind: Einrückung, Abstände, Schreibung", format);
    sub->add_option("QUELLE", options.words, "Quellen, oder Verzeichnisse mit *.story")->required();
    sub->add_flag("--check", options.onlyTell, "schreibt nichts, sagt nur, welche Quellen anders dastehen");

    sub = add("lsp", "bedient einen Editor: Befunde, Ergänzung, Hilfe, Sprünge, Umbenennen", server);
    sub->add_option("--data", options.data, "wo Bilder, Töne und so weiter liegen, wenn nicht neben den Quellen");

    sub = add("grammar", "druckt die Sprache, wie ein Editor sie einfärbt", grammar);
    sub->add_option("EDITOR", options.words, "vim, vscode oder kate")
        ->required()
        ->expected(1)
        ->check(CLI::Validator(CLI::IsMember({"vim", "vscode", "kate"})).description("vim, vscode oder kate"));

    sub = add("coverage", "sagt, welche Zeilen einer Geschichte kein Gang gelaufen ist", coverage);
    sub->add_option("QUELLE", options.words, "Quellen, oder Verzeichnisse mit *.story")->required();
    sub->add_option("--ran", options.ran, "was zentrox-probe --ran geschrieben hat, von jedem Gang eine Datei")
        ->required();
    sub->add_option("--least", options.least, "so viel Prozent der Zeilen müssen laufen")
        ->check(CLI::Validator(CLI::Range(0, 100)).description("von 0 bis 100"))
        ->type_name("ZAHL");

    sub = add("new", "legt eine kleine Geschichte an, zum Anfangen", fresh);
    sub->add_option("DIR", options.words, "ein Verzeichnis, das leer ist oder noch nicht da")
        ->required()
        ->expected(1);

    sub = add("pack", "macht aus einer Geschichte eine Datei, die das Spiel so spielt, wie sie ist", packed);
    sub->add_option("DIR", options.words, "das Datenverzeichnis, mit einer titel.txt, in der eine Kennung steht")
        ->required()
        ->expected(1);
    sub->add_option("--into", options.into, "die Datei, die geschrieben wird; mit --program das Verzeichnis");
    sub->add_flag("--program", options.program,
                  "ein Verzeichnis und ein Archiv mit dem Spiel darin, für Leute, die es nicht haben");
    sub->add_option("--player", options.player, "das Archiv des Spiels, das überall läuft, ausgepackt")
        ->type_name("DIR");

    add("opcodes", "druckt die Seite mit allen Befehlen", reference);
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
        err << "zentrox-story: " << error.path1().string() << ": " << inGerman(error.code()) << "\n";
    }
    return wrongCall;
}

}  // namespace zentrox::story
