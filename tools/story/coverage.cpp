#include "tools/story/coverage.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

#include "engine/language/opcodes.h"

namespace zentrox::story {

namespace {

using Json = nlohmann::json;

std::size_t lengthOf(const Skript& script) {
    return static_cast<std::size_t>(script.Letzter + 1);
}

bool isSame(const Skript& script, const Json& instructions) {
    if (instructions.size() != lengthOf(script)) return false;
    for (std::size_t i = 0; i < lengthOf(script); ++i)
        if (instructions[i].at("command") != script.Befehl[i] ||
            instructions[i].at("argument") != toUtf8(script.Argument[i]))
            return false;
    return true;
}

std::vector<bool> whatRan(const Json& instructions) {
    std::vector<bool> ran;
    for (const Json& instruction : instructions) ran.push_back(instruction.at("ran").get<bool>());
    return ran;
}

// Without its indent.
std::string lineOf(const std::string& source, int number) {
    std::istringstream in(source);
    std::string line;
    for (int i = 0; i < number && std::getline(in, line); ++i) {
    }
    const std::size_t first = line.find_first_not_of(" \t");
    return first == std::string::npos ? "" : line.substr(first);
}

}  // namespace

Coverage::Coverage(const Story& story) : story_(story) {
    for (const StoryRoom& room : story.rooms) {
        std::size_t action = 0;
        for (const ScriptView& view : scriptsOf(room)) {
            std::string name = view.role == ScriptView::Role::start ? "start" : "countdown";
            if (view.role == ScriptView::Role::action)
                name = "object " + std::to_string(action++ / std::tuple_size_v<decltype(RaumObjekt::Aktion)>);
            scripts_.insert({{lower(room.file), name}, {view}});
        }
    }
    for (const StoryScript& item : story.scripts)
        scripts_.insert({{"", "item"}, {{item.script, item.places, nullptr, ScriptView::Role::item}}});
    for (const auto& [key, script] : scripts_)
        for (std::size_t i = 0; i < lengthOf(script.view.script); ++i) {
            const Place& place = script.view.places.commands[i].command;
            commands_[script.view.script.Befehl[i]] = false;
            if (!isMark(script.view.script.Befehl[i])) lines_[{place.file, place.line}] = false;
        }
}

bool Coverage::add(const std::string& json) try {
    bool known = true;
    for (const Json& record : Json::parse(json)) {
        const Text room = lower(fromUtf8(record.at("room").get<std::string>()));
        const Json& instructions = record.at("instructions");
        const auto [first, last] = scripts_.equal_range({room, record.at("script").get<std::string>()});
        bool found = false;
        // Which of several equal scripts it was, nobody can tell.
        for (auto entry = first; entry != last; ++entry)
            if (isSame(entry->second.view.script, instructions)) {
                take(entry->second, whatRan(instructions));
                found = true;
            }
        known = known && (found || instructions.empty());
    }
    return known;
} catch (const Json::exception&) {
    return false;
}

void Coverage::take(Script& script, const std::vector<bool>& ran) {
    script.begun = true;
    for (std::size_t i = 0; i < ran.size(); ++i) {
        if (!ran[i]) continue;
        commands_[script.view.script.Befehl[i]] = true;
        const Place& place = script.view.places.commands[i].command;
        const auto line = lines_.find({place.file, place.line});
        if (line != lines_.end()) line->second = true;
    }
}

std::string Coverage::Count::asPercent() const {
    // Rounded down, so that only the whole is 100.
    const std::size_t tenths = all == 0 ? 1000 : ran * 1000 / all;
    std::ostringstream out;
    out << std::setw(3) << tenths / 10 << "," << tenths % 10 << " %";
    return out.str();
}

Coverage::Count Coverage::lines(std::optional<int> file) const {
    Count count;
    for (const auto& [place, ran] : lines_) {
        if (file && place.first != *file) continue;
        ++count.all;
        count.ran += ran ? 1 : 0;
    }
    return count;
}

Coverage::Count Coverage::scripts() const {
    Count count;
    for (const auto& [key, script] : scripts_) {
        if (lengthOf(script.view.script) == 0) continue;
        ++count.all;
        count.ran += script.begun ? 1 : 0;
    }
    return count;
}

double Coverage::percent() const {
    const Count count = lines();
    return count.all == 0 ? 100 : 100.0 * static_cast<double>(count.ran) / static_cast<double>(count.all);
}

std::string Coverage::missingLines(SourceFiles& files) const {
    std::map<int, std::string> sources;
    std::string report;
    for (const auto& [place, ran] : lines_) {
        if (ran) continue;
        const auto [file, line] = place;
        const std::string& name = story_.files[static_cast<std::size_t>(file)];
        if (!sources.contains(file)) sources[file] = files.read(std::filesystem::path(name)).value_or("");
        report += name + ":" + std::to_string(line) + ": nicht gelaufen: " + lineOf(sources[file], line) + "\n";
    }
    return report;
}

std::string Coverage::missingCommands() const {
    std::string names;
    for (const auto& [number, ran] : commands_)
        if (const Opcode* const opcode = findOpcode(number); !ran && opcode != nullptr)
            names += " " + toUtf8(opcode->name);
    return names.empty() ? "" : "Befehle, die nirgends gelaufen sind:" + names + "\n";
}

std::string Coverage::report(SourceFiles& files) const {
    const auto row = [](const Count& count, const std::string& what) {
        return count.asPercent() + "  " + std::to_string(count.ran) + " von " + std::to_string(count.all) + "  " +
               what + "\n";
    };
    std::string text = missingLines(files) + missingCommands();
    for (std::size_t i = 0; i < story_.files.size(); ++i)
        if (const Count count = lines(static_cast<int>(i)); count.all > 0)
            text += row(count, "Zeilen in " + story_.files[i]);
    return text + row(scripts(), "Skripte begonnen") + row(lines(), "Zeilen gelaufen");
}

}  // namespace zentrox::story
