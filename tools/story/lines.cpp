#include "tools/story/lines.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "engine/language/opcodes.h"
#include "tools/story/blocks.h"
#include "tools/story/names.h"
#include "tools/story/writer.h"

namespace zentrox::story {

namespace {

constexpr char lineMark = '#';
constexpr char optionMark = '|';
constexpr std::string_view tableHead = "# Schlüssel\tOrt\tPerson\tStimme\tZeichen\tText\n";

std::vector<TextView> linesOfText(TextView text) {
    std::vector<TextView> lines;
    while (true) {
        const std::size_t end = text.find(lineMark);
        lines.push_back(text.substr(0, end));
        if (end == TextView::npos) return lines;
        text.remove_prefix(end + 1);
    }
}

// The mark of colour that a line begins with.
TextView colourOf(TextView line) {
    return line.starts_with('$') ? line.substr(0, 2) : TextView();
}

Text withoutColours(TextView text) {
    Text out;
    bool first = true;
    for (const TextView line : linesOfText(text)) {
        if (!std::exchange(first, false)) out += lineMark;
        out += line.substr(colourOf(line).size());
    }
    return out;
}

// The new text in the colours of the old one; a line more than it had takes that of its last.
Text inColoursOf(TextView old, TextView text) {
    const auto before = linesOfText(old);
    Text out;
    std::size_t i = 0;
    for (const TextView line : linesOfText(text)) {
        if (i > 0) out += lineMark;
        if (!line.starts_with('$')) out += colourOf(before[std::min(i, before.size() - 1)]);
        out += line;
        ++i;
    }
    return out;
}

std::string keyOf(TextView where, TextView text) {
    std::uint32_t hash = 2166136261U;  // FNV-1a
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    constexpr std::string_view hex = "0123456789abcdef";
    std::string key = toUtf8(where) + "-";
    for (unsigned shift = 32; shift > 0; shift -= 4) key += hex[hash >> (shift - 4) & 0xFU];
    return key;
}

// Calls `visit(text, place)` for each text of an instruction, which may change it.
template <typename Visit>
void eachText(Skript& script, const ScriptPlaces& places, std::size_t i, const Visit& visit) {
    const Opcode* const row = findOpcode(script.Befehl[i]);
    if (!row || i >= script.Argument.size()) return;
    Text& argument = script.Argument[i];
    if (row->arg == Arg::text) visit(argument, places.argument(i));
    if (row->arg != Arg::choice) return;
    ChoiceText choice = splitChoice(argument);
    Text again = argument.substr(0, argument.find(optionMark));
    const auto& at = places.commands[i].argument;
    std::size_t line = 0;
    const auto one = [&](Text& text) {
        const std::size_t count = linesOfText(text).size();
        visit(text, line < at.size() ? at[line] : places.argument(i));
        line += count;
        (again += optionMark) += text;
    };
    one(choice.question);
    for (Text& option : choice.options) one(option);
    argument = again;
}

template <typename Visit>
void eachScript(Story& story, const Visit& visit) {
    for (StoryRoom& room : story.rooms) {
        const Text where = stemOf(room.file);
        visit(room.room.Startskript, room.start, where);
        for (std::size_t i = 0; i < room.room.Objekte.size(); ++i)
            for (std::size_t k = 0; k < room.room.Objekte[i].Aktion.size(); ++k)
                visit(room.room.Objekte[i].Aktion[k], room.objects[i].action[k], where);
        visit(room.room.CountDownSkript, room.countDown, where);
    }
    for (StoryScript& script : story.scripts) visit(script.script, script.places, stemOf(script.file));
}

std::string spelled(const Story& story, const Place& place) {
    return story.files[static_cast<std::size_t>(place.file)] + ":" + std::to_string(place.line) + ":" +
           std::to_string(place.column);
}

// What a file says, by key.
class Replacements {
public:
    Replacements(std::string_view utf8, int file, Findings& findings) : file_(file), findings_(findings) {
        const std::size_t first = utf8.find_first_not_of(" \t\r\n");
        if (first != std::string_view::npos && utf8[first] == '[')
            list(utf8);
        else
            table(utf8);
    }

    std::map<std::string, std::pair<Text, int>> texts;  // with the line of the file

private:
    void list(std::string_view utf8) try {
        for (const auto& entry : nlohmann::json::parse(utf8))
            add(entry.at("key").get<std::string>(), entry.at("text").get<std::string>(), 1);
    } catch (const nlohmann::json::exception&) {
        findings_.broken({file_, 1, 1}, "texte", "das ist keine Liste, wie „lines --json“ sie schreibt");
    }

    void table(std::string_view utf8) {
        for (int number = 1; !utf8.empty(); ++number) {
            const std::size_t end = std::min(utf8.find('\n'), utf8.size());
            std::string_view line = utf8.substr(0, end);
            utf8.remove_prefix(std::min(end + 1, utf8.size()));
            if (line.ends_with('\r')) line.remove_suffix(1);
            if (line.empty() || line.starts_with('#')) continue;
            const std::size_t behindKey = line.find('\t');
            if (behindKey == std::string_view::npos)
                findings_.broken({file_, number, 1}, "texte",
                                 "in einer Zeile stehen ein Schlüssel und, hinter Tabulatoren, ein Text");
            else
                add(std::string(line.substr(0, behindKey)), line.substr(line.rfind('\t') + 1), number);
        }
    }

    void add(const std::string& key, std::string_view utf8, int number) {
        const auto text = tryFromUtf8(utf8);
        if (!text || text->find('"') != Text::npos || text->find(optionMark) != Text::npos)
            return findings_.broken({file_, number, 1}, "zeichen",
                                    "der Text zu " + key + " enthält ein Zeichen, das in keinem Text stehen kann");
        texts.insert_or_assign(key, std::pair(*text, number));
    }

    int file_;
    Findings& findings_;
};

}  // namespace

std::vector<TextLine> textsOf(const Story& story) {
    Story copy = story;
    std::vector<TextLine> lines;
    std::set<std::string> known;
    eachScript(copy, [&](Skript& script, const ScriptPlaces& places, const Text& where) {
        for (std::size_t i = 0; i < script.Befehl.size(); ++i)
            eachText(script, places, i, [&](Text& text, Place place) {
                const Text plain = withoutColours(text);
                TextLine line{keyOf(where, plain), place, places.commands[i].speaker, {}, plain};
                if (i > 0 && script.Befehl[i - 1] == "Ton"_op) line.voice = script.Argument[i - 1];
                if (!plain.empty() && known.insert(line.key).second) lines.push_back(std::move(line));
            });
    });
    return lines;
}

std::string asTable(const Story& story, const std::vector<TextLine>& lines) {
    std::string out(tableHead);
    for (const TextLine& line : lines)
        out += line.key + "\t" + spelled(story, line.place) + "\t" + toUtf8(line.speaker) + "\t" +
               toUtf8(line.voice) + "\t" + std::to_string(line.text.size()) + "\t" + toUtf8(line.text) + "\n";
    return out;
}

std::string linesAsJson(const Story& story, const std::vector<TextLine>& lines) {
    auto list = nlohmann::ordered_json::array();
    for (const TextLine& line : lines)
        list.push_back({{"key", line.key},
                        {"file", story.files[static_cast<std::size_t>(line.place.file)]},
                        {"line", line.place.line},
                        {"column", line.place.column},
                        {"speaker", toUtf8(line.speaker)},
                        {"voice", toUtf8(line.voice)},
                        {"length", line.text.size()},
                        {"text", toUtf8(line.text)}});
    return list.dump(1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

void replaceTexts(Story& story, std::string_view utf8, int file, Findings& findings) {
    const Replacements replacements(utf8, file, findings);
    std::set<std::string> used;
    eachScript(story, [&](Skript& script, const ScriptPlaces& places, const Text& where) {
        for (std::size_t i = 0; i < script.Befehl.size(); ++i)
            eachText(script, places, i, [&](Text& text, Place /*place*/) {
                const auto found = replacements.texts.find(keyOf(where, withoutColours(text)));
                if (found == replacements.texts.end()) return;
                used.insert(found->first);
                text = inColoursOf(text, found->second.first);
            });
    });
    for (const auto& [key, text] : replacements.texts)
        if (!used.contains(key))
            findings.warning({file, text.second, 1}, "text-ohne-ort",
                             "einen Text mit dem Schlüssel " + key + " gibt es nicht mehr");
}

}  // namespace zentrox::story
