#include "tools/lsp/positions.h"

#include <algorithm>

#include "platform/values/text.h"

namespace zentrox::lsp {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr char32_t firstOfTwo = 0x10000;  // from here on a character is two units of UTF-16

// Cuts one character off and tells how much an editor counts for it.
int cut(std::string_view& rest, Encoding encoding) {
    const std::size_t before = rest.size();
    const auto character = takeCodePoint(rest);
    if (encoding == Encoding::utf8) return static_cast<int>(before - rest.size());
    return character && *character >= firstOfTwo ? 2 : 1;
}

}  // namespace

Lines::Lines(std::string_view text) : text_(text), marked_(text.starts_with(byteOrderMark)) {
    starts_.push_back(0);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\n' && text[i] != '\r') continue;
        ends_.push_back(i);
        if (text.substr(i).starts_with("\r\n")) ++i;
        starts_.push_back(i + 1);
    }
    ends_.push_back(text.size());
}

std::size_t Lines::mark(int line) const {
    return marked_ && line == 1 ? byteOrderMark.size() : 0;
}

std::string_view Lines::line(int line) const {
    if (line < 1 || line > count()) return {};
    const auto i = static_cast<std::size_t>(line - 1);
    const std::size_t start = starts_[i] + mark(line);
    return text_.substr(start, ends_[i] - start);
}

Position Lines::position(int line, int column, Encoding encoding) const {
    Position found{line - 1, 0};
    if (mark(line) > 0) found.character = encoding == Encoding::utf8 ? static_cast<int>(byteOrderMark.size()) : 1;
    std::string_view rest = this->line(line);
    for (int i = 1; i < column && !rest.empty(); ++i) found.character += cut(rest, encoding);
    return found;
}

int Lines::column(const Position& position, Encoding encoding) const {
    std::string_view rest = line(position.line + 1);
    int left = position.character;
    if (mark(position.line + 1) > 0)
        left -= encoding == Encoding::utf8 ? static_cast<int>(byteOrderMark.size()) : 1;
    int column = 1;
    for (; left > 0 && !rest.empty(); ++column) left -= cut(rest, encoding);
    return column;
}

std::size_t Lines::offset(const Position& position, Encoding encoding) const {
    if (position.line < 0) return 0;
    if (position.line >= count()) return text_.size();
    const auto i = static_cast<std::size_t>(position.line);
    std::string_view rest = text_.substr(starts_[i], ends_[i] - starts_[i]);
    for (int left = position.character; left > 0 && !rest.empty();) left -= cut(rest, encoding);
    return ends_[i] - rest.size();
}

Position Lines::end(Encoding encoding) const {
    Position found = position(count(), 1, encoding);
    for (std::string_view rest = line(count()); !rest.empty();) found.character += cut(rest, encoding);
    return found;
}

}  // namespace zentrox::lsp
