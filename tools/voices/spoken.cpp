#include "tools/voices/spoken.h"

#include <algorithm>

namespace zentrox::voices {

namespace {

constexpr TextView quotes = "\"»«›‹„“”"_t;
constexpr std::size_t yearLength = 4;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isSmall(char c) {
    return upper(c) != c;
}

bool isWord(char c) {
    return isDigit(c) || isSmall(c) || lower(c) != c || c == "ß"_t[0];
}

bool isColour(TextView line) {
    return line.size() >= 2 && line[0] == '$' && TextView("0123456789ABCDEF").find(line[1]) != TextView::npos;
}

// The lines of a text, also those that "#" ends.
std::vector<TextView> shownLines(TextView text) {
    std::vector<TextView> lines;
    for (TextView line : linesOf(text)) {
        std::size_t end = 0;
        for (; (end = line.find('#')) != TextView::npos; line.remove_prefix(end + 1))
            lines.push_back(line.substr(0, end));
        lines.push_back(line);
    }
    return lines;
}

// True if nothing that belongs to a word goes on at either side of the `length` characters at `at`.
bool standsAlone(const Text& text, std::size_t at, std::size_t length) {
    const std::size_t end = at + length;
    const bool before = at > 0 && isWord(text[at]) && isWord(text[at - 1]);
    const bool behind = end < text.size() && isWord(text[end - 1]) && isWord(text[end]);
    return !before && !behind;
}

void replaceAll(Text& text, const Replacement& word) {
    for (std::size_t at = 0; (at = text.find(word.written, at)) != Text::npos;) {
        if (standsAlone(text, at, word.written.size())) {
            text.replace(at, word.written.size(), word.spoken);
            at += word.spoken.size();
        } else {
            ++at;
        }
    }
}

// From 1100 to 1999 one counts in hundreds.
void sayYears(Text& text) {
    for (std::size_t at = 0; at + yearLength <= text.size(); ++at) {
        const Text year = text.substr(at, yearLength);
        const bool number = std::all_of(year.begin(), year.end(), isDigit) && standsAlone(text, at, yearLength);
        const bool decimal = at > 0 && (text[at - 1] == ',' || text[at - 1] == '.');
        if (!number || decimal || year[0] != '1' || year[1] == '0') continue;
        const Text rest = year.substr(year[2] == '0' ? 3 : 2);
        text.replace(at, yearLength, year.substr(0, 2) + (rest == "0" ? "hundert" : "hundert " + rest));
    }
}

}  // namespace

char colourOf(TextView text) {
    for (const TextView line : shownLines(text))
        if (isColour(line)) return line[1];
    return '-';
}

Text spoken(TextView text, const std::vector<Replacement>& words) {
    Text said;
    for (TextView line : shownLines(text)) {
        if (isColour(line)) line.remove_prefix(2);
        if (!said.empty() && !line.empty()) said += ' ';
        said += line;
    }
    std::erase_if(said, [](char c) { return quotes.find(c) != TextView::npos; });
    const bool shouted = std::none_of(said.begin(), said.end(), isSmall);
    for (const Replacement& word : words) replaceAll(said, word);
    if (shouted) said = lower(said);
    sayYears(said);
    return said;
}

}  // namespace zentrox::voices
