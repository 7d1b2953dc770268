// Places in a text as an editor counts them: lines from 0, characters in units of UTF-16 or in bytes of UTF-8.
// Places of the compiler count both from 1, and characters as such; it does not count a byte order mark.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zentrox::lsp {

enum class Encoding { utf8, utf16 };

struct Position {
    int line = 0;
    int character = 0;
    friend auto operator<=>(const Position&, const Position&) = default;
};

struct Range {
    Position start;
    Position end;
};

// The lines of a text. The text must live as long as they do.
class Lines {
public:
    explicit Lines(std::string_view text);

    // Of a line of the compiler, without its end; empty where there is none.
    std::string_view line(int line) const;
    int count() const { return static_cast<int>(starts_.size()); }

    Position position(int line, int column, Encoding encoding) const;
    // The column that a position means; a position behind the end of its line means that end.
    int column(const Position& position, Encoding encoding) const;
    // Where a position lies in the text, the mark included.
    std::size_t offset(const Position& position, Encoding encoding) const;
    Position end(Encoding encoding) const;

private:
    std::size_t mark(int line) const;

    std::string_view text_;
    std::vector<std::size_t> starts_;
    std::vector<std::size_t> ends_;
    bool marked_ = false;
};

}  // namespace zentrox::lsp
