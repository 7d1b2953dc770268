// Where the characters of a text stand: lines that fit a width, and places within a line.
#pragma once

#include <vector>

#include "platform/picture/font.h"

namespace zentrox {

// A part of a text, by the indexes of its first character and of the one behind its last. A line end is in no line.
struct TextLine {
    std::size_t begin = 0;
    std::size_t end = 0;
    friend bool operator==(const TextLine&, const TextLine&) = default;
};

// Breaks a text at its line ends, and between words where a line would be wider than `width` pixels; a word too
// wide for a line is broken anywhere. Blanks at a break hang over the end of their line. At least one line.
std::vector<TextLine> wrapText(const Font& font, TextView text, int width);

// The gap between characters of a line that is nearest to `x` pixels from its left end.
std::size_t nearestGap(const Font& font, TextView line, int x);

// The widest of some lines in pixels.
int widestLine(const Font& font, TextView text, const std::vector<TextLine>& lines);

// A text without its carriage returns and line feeds, cut at the first of them.
TextView firstLine(TextView text);

}  // namespace zentrox
