#include "platform/window/controls/textlayout.h"

#include <algorithm>

namespace zentrox {

namespace {

// How many characters at the front of `line` fit into `width` pixels; at least one.
std::size_t fitting(const Font& font, TextView line, int width) {
    // No character that shows is narrower than a pixel, so that no longer piece has to be measured.
    std::size_t least = 1;
    std::size_t most = std::min(line.size(), static_cast<std::size_t>(std::max(width, 0)) + 1);
    while (least < most) {
        const std::size_t middle = least + (most - least + 1) / 2;
        if (font.width(line.substr(0, middle)) <= width)
            least = middle;
        else
            most = middle - 1;
    }
    return least;
}

// Breaks one paragraph, which begins at `begin` of the text.
void wrapParagraph(const Font& font, TextView paragraph, std::size_t begin, int width,
                   std::vector<TextLine>& into) {
    do {
        std::size_t taken = paragraph.empty() ? 0 : fitting(font, paragraph, width);
        if (taken < paragraph.size() && paragraph[taken] != ' ') {
            const std::size_t blank = paragraph.substr(0, taken).rfind(' ');
            const bool word = blank != TextView::npos && paragraph.find_first_not_of(' ') < blank;
            if (word) taken = blank + 1;
        }
        while (taken < paragraph.size() && paragraph[taken] == ' ') ++taken;
        into.push_back({begin, begin + taken});
        begin += taken;
        paragraph.remove_prefix(taken);
    } while (!paragraph.empty());
}

}  // namespace

std::vector<TextLine> wrapText(const Font& font, TextView text, int width) {
    std::vector<TextLine> lines;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        wrapParagraph(font, text.substr(begin, end - begin), begin, width, lines);
        if (end == text.size()) return lines;
        begin = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
}

std::size_t nearestGap(const Font& font, TextView line, int x) {
    std::size_t left = 0;
    std::size_t right = line.size();
    while (left < right) {
        const std::size_t middle = left + (right - left) / 2;
        const int centre = (font.width(line.substr(0, middle)) + font.width(line.substr(0, middle + 1))) / 2;
        if (centre < x)
            left = middle + 1;
        else
            right = middle;
    }
    return left;
}

int widestLine(const Font& font, TextView text, const std::vector<TextLine>& lines) {
    int widest = 0;
    for (const TextLine& line : lines) {
        TextView piece = text.substr(line.begin, line.end - line.begin);
        piece = piece.substr(0, piece.find_last_not_of(' ') + 1);
        widest = std::max(widest, font.width(piece));
    }
    return widest;
}

TextView firstLine(TextView text) {
    return text.substr(0, text.find_first_of("\r\n"));
}

}  // namespace zentrox
