#include "tools/story/options.h"

#include <CLI/CLI.hpp>

namespace zentrox::story {

namespace {

constexpr const char* whereDataLies = "wo Bilder, Töne und so weiter liegen, wenn nicht neben den Quellen";

CLI::Validator aboveZero() {
    return CLI::Validator(CLI::PositiveNumber).description("über 0");
}

// Of a story in either form.
void takesStory(CLI::App& app, std::vector<std::string>& words) {
    app.add_option("QUELLE-oder-DIR", words, "Quellen, ein Verzeichnis mit ihnen, oder ein Datenverzeichnis")
        ->required();
}

void takesSources(CLI::App& app, std::vector<std::string>& words) {
    app.add_option("QUELLE", words, "Quellen, oder Verzeichnisse mit *.story")->required();
}

}  // namespace

void describeLines(CLI::App& app, Options& options) {
    takesStory(app, options.words);
    app.add_flag("--json", options.json, "eine Liste für Maschinen");
}

void describeBuild(CLI::App& app, Options& options) {
    takesSources(app, options.words);
    app.add_option("--into", options.into, "das Datenverzeichnis, in das geschrieben wird")->required();
    app.add_option("--with", options.with, "eine Tabelle von lines, deren Texte an die Stelle der eigenen treten");
}

void describeCheck(CLI::App& app, Options& options) {
    takesStory(app, options.words);
    app.add_option("--data", options.data, whereDataLies);
    app.add_flag("--json", options.json, "Befunde für Maschinen");
    app.add_flag("--games", options.games, "sagt auch, ohne welche Spiele die Geschichte nicht zu Ende geht");
}

void describeSource(CLI::App& app, Options& options) {
    app.add_option("DIR-oder-DATEI", options.words, "Datenverzeichnisse, Räume, Skripte")->required();
    app.add_option("--into", options.into,
                   "schreibt in dieses Verzeichnis: je Raum eine Quelle, für die Gegenstände eine");
}

void describeProve(CLI::App& app, Options& options) {
    prove::Call& call = options.prove;
    takesStory(app, options.words);
    app.add_option("--walks", call.walks,
                   "schreibt die kürzesten Gänge zu Enden und Sackgassen in dieses Verzeichnis");
    app.add_flag("--statistik", call.statistics, "Zustände, Schritte, Wege, und die Räume als Bild für Graphviz");
    app.add_option("--graph", call.graph, "schreibt dieses Bild in eine Datei");
    app.add_option("--seconds", call.seconds, "sucht nicht länger als so viele Sekunden")
        ->check(aboveZero())
        ->type_name("ZAHL");
    app.add_option("--memory", call.megabytes, "nimmt nicht mehr als so viele Megabyte, sonst 2000")
        ->check(aboveZero())
        ->type_name("ZAHL");
    app.add_option("--limit", call.states, "sieht nicht mehr als so viele Zustände an")
        ->check(aboveZero())
        ->type_name("ZAHL");
    app.add_flag("--full", call.full, "lässt nichts aus, auch was auf die Antworten keinen Einfluss hat");
    app.add_flag("--json", options.json, "ein Objekt für Maschinen");
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
    takesStory(app, order.words);
    app.add_option("--into", order.into, "die Datei, die geschrieben wird, etwa geschichte.html")->required();
    app.add_option("--data", order.data, whereDataLies);
    app.add_option("--ran", order.ran, "was zentrox-probe --ran geschrieben hat; die Zeilen werden danach gefärbt");
    app.add_option("--proof", order.proof, "was zentrox-story prove --json geschrieben hat");
    app.add_option("--title", order.title, "wie die Geschichte auf der Seite heißt");
}

void describeFormat(CLI::App& app, Options& options) {
    takesSources(app, options.words);
    app.add_flag("--check", options.onlyTell, "schreibt nichts, sagt nur, welche Quellen anders dastehen");
}

void describeServer(CLI::App& app, Options& options) {
    app.add_option("--data", options.data, whereDataLies);
}

void describeGrammar(CLI::App& app, Options& options) {
    app.add_option("EDITOR", options.words, "vim, vscode oder kate")
        ->required()
        ->expected(1)
        ->check(CLI::Validator(CLI::IsMember({"vim", "vscode", "kate"})).description("vim, vscode oder kate"));
}

void describeCoverage(CLI::App& app, Options& options) {
    takesSources(app, options.words);
    app.add_option("--ran", options.ran, "was zentrox-probe --ran geschrieben hat, von jedem Gang eine Datei")
        ->required();
    app.add_option("--least", options.least, "so viel Prozent der Zeilen müssen laufen")
        ->check(CLI::Validator(CLI::Range(0, 100)).description("von 0 bis 100"))
        ->type_name("ZAHL");
}

void describeFresh(CLI::App& app, Options& options) {
    app.add_option("DIR", options.words, "ein Verzeichnis, das leer ist oder noch nicht da")
        ->required()
        ->expected(1);
}

void describePack(CLI::App& app, Options& options) {
    app.add_option("DIR", options.words, "das Datenverzeichnis, mit einer titel.txt, in der eine Kennung steht")
        ->required()
        ->expected(1);
    app.add_option("--into", options.into, "die Datei, die geschrieben wird; mit --program das Verzeichnis");
    app.add_flag("--program", options.program,
                 "ein Verzeichnis und ein Archiv mit dem Spiel darin, für Leute, die es nicht haben");
    app.add_option("--player", options.player, "das Archiv des Spiels, das überall läuft, ausgepackt")
        ->type_name("DIR");
}

}  // namespace zentrox::story
