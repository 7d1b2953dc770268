#include "tools/prove/report.h"

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>

namespace zentrox::prove {

namespace {

using Json = nlohmann::ordered_json;

// With a point for each three digits.
std::string number(std::uint64_t value) {
    const std::string digits = std::to_string(value);
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) text += '.';
        text += digits[i];
    }
    return text;
}

std::string steps(std::uint64_t count) {
    return number(count) + (count == 1 ? " Schritt" : " Schritte");
}

std::string states(const Report& report) {
    return number(report.states) + (report.states == 1 ? " Zustand" : " Zustände");
}

std::string lineName(const story::Story& story, const story::Place& place) {
    return story.files[static_cast<std::size_t>(place.file)] + ":" + std::to_string(place.line);
}

// A name that every file system takes.
std::string fileWord(const std::string& name) {
    std::string word;
    for (const char c : name) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (plain || static_cast<unsigned char>(c) >= 0x80)
            word += c;
        else if (!word.empty() && word.back() != '-')
            word += '-';
    }
    while (!word.empty() && word.back() == '-') word.pop_back();
    return word.empty() ? "ende" : word;
}

std::string inDot(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        if (c == '\n')
            out += "\\n";
        else
            out += c;
    }
    return out + '"';
}

std::string endingsText(const Report& report) {
    if (report.endings.empty())
        return report.complete
                   ? "Kein Ende ist zu erreichen.\n"
                   : "In den " + states(report) + "n, die gesehen wurden, war kein Ende zu erreichen.\n";
    std::string text = "Enden:\n";
    for (const FoundEnding& ending : report.endings) text += "  " + ending.name + ": " + steps(ending.steps) + "\n";
    return text;
}

std::string deadEndsText(const Report& report) {
    if (report.endings.empty()) return "";
    if (!report.dead.empty())
        return number(report.dead.size()) +
               (report.dead.size() == 1
                    ? " Sackgasse: hinter diesem Schritt ist kein Ende mehr zu erreichen.\n"
                    : " Sackgassen: hinter diesen Schritten ist kein Ende mehr zu erreichen.\n");
    return report.complete ? "Keine Sackgasse: von überall her ist ein Ende zu erreichen. Bewiesen über " +
                                 states(report) + ".\n"
                           : "In den " + states(report) + "n, die gesehen wurden, war keine Sackgasse.\n";
}

std::string provisos(const Report& report) {
    std::string text;
    if (report.evilCut)
        text += "Das gilt, so weit die bösen Punkte zwischen " + std::to_string(report.evilLeast) + " und " +
                std::to_string(report.evilMost) + " bleiben.\n";
    if (report.tooDeep)
        text += "Das gilt, so weit nicht mehr als " + std::to_string(deepestRun) + " Skripte ineinander stehen.\n";
    if (report.complete) return text;
    text += "Nicht alles wurde gesehen: Die Suche endete vorher, nach " + states(report) + "n.";
    if (report.neverRun > 0)
        text += " " + number(report.neverRun) + (report.neverRun == 1 ? " Zeile ist" : " Zeilen sind") +
                " darin nicht gelaufen; ob ein Spiel dorthin kommt, ist offen.";
    return text + "\n";
}

Json asJson(const story::Story& story, const std::vector<ToldStep>& play) {
    Json steps = Json::array();
    for (const ToldStep& step : play) {
        Json told{{"room", step.room}, {"do", step.what}, {"texts", step.texts}};
        if (step.place.file != -1) {
            told["file"] = story.files[static_cast<std::size_t>(step.place.file)];
            told["line"] = step.place.line;
        }
        steps.push_back(std::move(told));
    }
    return steps;
}

}  // namespace

std::string asText(const story::Story& story, const Report& report, const std::string& walks) {
    std::string text = story::asLines(story, report.findings) + endingsText(report) + deadEndsText(report);
    text += provisos(report);
    if (!walks.empty()) text += "Die Spiele dazu liegen in " + walks + ".\n";
    return text;
}

std::string statistics(const Report& report) {
    const std::string seconds = std::to_string(report.seconds);
    std::string text = "Zustände: " + number(report.states) + "\nSchritte: " + number(report.steps) +
                       "\nSekunden: " + seconds.substr(0, seconds.find('.') + 3) +
                       "\nSpeicher: " + number(report.megabytes) + " MB\n";
    for (const FoundEnding& ending : report.endings)
        text += "Ende " + ending.name + ": kürzester Weg " + steps(ending.steps) + ", längster ohne Umweg " +
                steps(ending.mostSteps) + "\n";
    return text;
}

std::string asGraph(const Report& report) {
    std::string text =
        "digraph Geschichte {\n    rankdir=LR;\n    node [shape=box, fontname=\"sans-serif\"];\n"
        "    edge [fontname=\"sans-serif\", fontsize=10];\n";
    for (std::size_t i = 0; i < report.rooms.size(); ++i)
        text += "    r" + std::to_string(i) + " [label=" + inDot(report.rooms[i]) +
                (report.entered[i] ? "" : ", style=dashed") + "];\n";
    std::set<std::string> edges;
    for (const Passage& passage : report.passages) {
        const std::string from = passage.from == -1 ? "tasche" : "r" + std::to_string(passage.from);
        edges.insert("    " + from + " -> r" + std::to_string(passage.to) + " [label=" + inDot(passage.what) +
                     "];\n");
        if (passage.from == -1) edges.insert("    tasche [label=\"(Tasche)\", shape=ellipse];\n");
    }
    for (const std::string& edge : edges) text += edge;
    return text + "}\n";
}

std::string asJson(const story::Story& story, const Report& report) {
    Json endings = Json::array();
    for (const FoundEnding& ending : report.endings)
        endings.push_back({{"name", ending.name},
                           {"steps", ending.steps},
                           {"walk", ending.walk},
                           {"play", asJson(story, ending.play)}});
    Json dead = Json::array();
    for (const DeadEnd& end : report.dead)
        dead.push_back({{"file", story.files[static_cast<std::size_t>(end.place.file)]},
                        {"line", end.place.line},
                        {"column", end.place.column},
                        {"steps", end.steps},
                        {"walk", end.walk},
                        {"play", asJson(story, end.play)}});
    const Json whole{{"complete", report.complete},
                     {"states", report.states},
                     {"steps", report.steps},
                     {"endings", endings},
                     {"dead", dead},
                     {"findings", Json::parse(story::asJson(story, report.findings))}};
    return whole.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::vector<std::pair<std::string, std::string>> walkFiles(const story::Story& story, const Report& report) {
    std::vector<std::pair<std::string, std::string>> files;
    std::map<std::string, int> used;
    const auto add = [&](const std::string& stem, const std::string& walk) {
        const int count = ++used[stem];
        files.emplace_back(stem + (count > 1 ? "-" + std::to_string(count) : "") + ".walk", walk);
    };
    for (const FoundEnding& ending : report.endings) add("ende-" + fileWord(ending.name), ending.walk);
    for (const DeadEnd& end : report.dead) {
        const std::string line = lineName(story, end.place);
        add("sackgasse-" + fileWord(line.substr(line.find_last_of("/\\") + 1)), end.walk);
    }
    return files;
}

}  // namespace zentrox::prove
