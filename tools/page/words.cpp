#include "tools/page/words.h"

#include <algorithm>

namespace zentrox::page {

namespace {

bool beginsCharacter(char c) {
    return (c & 0xC0) != 0x80;
}

}  // namespace

std::size_t lengthOf(std::string_view utf8) {
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), beginsCharacter));
}

double widthOf(std::string_view utf8) {
    constexpr double narrow = 4.2, usual = 7.6, wide = 9.4, widest = 12.4;
    double width = 0;
    for (const char c : utf8) {
        if (!beginsCharacter(c)) continue;
        if (std::string_view("iljIft.,:;'|! ()").find(c) != std::string_view::npos)
            width += narrow;
        else if (c == 'm' || c == 'w' || c == 'M' || c == 'W')
            width += widest;
        else
            width += (c >= 'A' && c <= 'Z') || (c & 0x80) != 0 ? wide : usual;
    }
    return width;
}

std::string shortened(std::string utf8, std::size_t most) {
    if (lengthOf(utf8) <= most) return utf8;
    while (lengthOf(utf8) >= most) {
        while (!beginsCharacter(utf8.back())) utf8.pop_back();
        utf8.pop_back();
    }
    return utf8 + "…";
}

std::vector<std::string> brokenInto(const std::string& utf8, std::size_t most, std::size_t before) {
    std::vector<std::string> lines(1);
    std::size_t length = before;
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t end = std::min(utf8.find(' ', at), utf8.size());
        const std::string word = utf8.substr(at, end - at);
        at = end + 1;
        if (word.empty()) continue;
        if (!lines.back().empty() && length + 1 + lengthOf(word) > most) {
            lines.emplace_back();
            length = 0;
        }
        lines.back() += (lines.back().empty() ? "" : " ") + word;
        length += lengthOf(word) + 1;
    }
    return lines;
}

std::string inWords(const story::Condition& condition) {
    std::string words;
    for (const auto& terms : condition) {
        if (&terms != &condition.front()) words += " oder ";
        for (const story::Term& term : terms) {
            if (&term != &terms.front()) words += " und ";
            if (term.negated) words += "nicht ";
            words += toUtf8(term.name.value);
        }
    }
    return words;
}

std::string inWords(const Need& need) {
    if (!need.answer.empty() || need.when.empty()) return "„" + toUtf8(need.answer) + "“";
    const bool one = need.when.size() == 1 && need.when[0].size() == 1;
    if (!need.negated) return inWords(need.when);
    if (!one) return "nicht (" + inWords(need.when) + ")";
    return (need.when[0][0].negated ? "" : "nicht ") + toUtf8(need.when[0][0].name.value);
}

}  // namespace zentrox::page
