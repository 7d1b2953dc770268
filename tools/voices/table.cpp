#include "tools/voices/table.h"

#include <charconv>

namespace zentrox::voices {

namespace {

using Words = std::vector<std::string>;

constexpr std::string_view blanks = " \t\r";
constexpr std::string_view colours = "-0123456789ABCDEF";

Words wordsOf(std::string_view line, int number) {
    Words words;
    while (true) {
        const std::size_t begin = line.find_first_not_of(blanks);
        if (begin == std::string_view::npos || line[begin] == '#') return words;
        const bool quoted = line[begin] == '"';
        line.remove_prefix(begin + (quoted ? 1 : 0));
        std::size_t end = line.find_first_of(quoted ? "\"" : blanks);
        if (quoted && end == std::string_view::npos) throw TableError(number, "Hier fehlt ein Anführungszeichen.");
        end = std::min(end, line.size());
        words.emplace_back(line.substr(0, end));
        line.remove_prefix(std::min(end + (quoted ? 1 : 0), line.size()));
    }
}

template <typename Number>
Number numberOf(const std::string& word, Number least, Number most, int line) {
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error == std::errc() && end == word.data() + word.size() && number >= least && number <= most)
        return number;
    throw TableError(
        line, "„" + word + "“ ist keine Zahl von " + std::to_string(least) + " bis " + std::to_string(most) + ".");
}

Voice voiceOf(const Words& words, int line) {
    constexpr std::size_t fixed = 7;  // words before the effects
    if (words.size() < fixed)
        throw TableError(line, "Erwartet: stimme NAME FARBE STIMME HÖHE TEMPO PEGEL EFFEKT...");
    Voice voice;
    if (words[2].size() != 1 || colours.find(words[2][0]) == std::string_view::npos)
        throw TableError(line, "„" + words[2] + "“ ist keine Farbe: erwartet ist 0 bis 9, A bis F oder -.");
    voice.colour = words[2][0];
    voice.variant = words[3];
    voice.pitch = numberOf(words[4], 0, 99, line);
    voice.speed = numberOf(words[5], 80, 450, line);
    voice.level = numberOf(words[6], -60.0, 0.0, line);
    voice.effects.assign(words.begin() + fixed, words.end());
    return voice;
}

void take(const Words& words, int line, Table& table) {
    const std::string& kind = words.front();
    if (kind == "klang") {
        table.effects.assign(words.begin() + 1, words.end());
    } else if (kind == "stimme") {
        const Voice voice = voiceOf(words, line);
        if (!table.voices.emplace(words[1], voice).second)
            throw TableError(line, "„" + words[1] + "“ hat schon eine Stimme.");
    } else if (kind == "wort" && words.size() == 3 && !words[1].empty()) {
        table.words.push_back({fromUtf8(words[1]), fromUtf8(words[2])});
    } else if (kind == "zeile" && words.size() == 4) {
        if (!table.voices.contains(words[2])) throw TableError(line, "„" + words[2] + "“ hat keine Stimme.");
        table.lines.push_back({words[1], words[2], fromUtf8(words[3])});
    } else {
        throw TableError(line,
                         "Erwartet: klang, stimme, wort \"GESCHRIEBEN\" \"GESPROCHEN\" oder zeile \"DATEI\" "
                         "NAME \"TEXT\".");
    }
}

}  // namespace

Table readTable(std::string_view utf8) {
    Table table;
    for (int number = 1; !utf8.empty(); ++number) {
        const std::size_t end = std::min(utf8.find('\n'), utf8.size());
        const Words words = wordsOf(utf8.substr(0, end), number);
        if (!words.empty()) take(words, number, table);
        utf8.remove_prefix(std::min(end + 1, utf8.size()));
    }
    return table;
}

}  // namespace zentrox::voices
