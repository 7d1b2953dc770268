#include "platform/picture/font.h"

#include <algorithm>

namespace zentrox {

namespace {

constexpr int thickFrom = 16;  // pixels of a line's height from which on an outline is two pixels wide
constexpr int darkBelow = 72;  // of 255; between dark red and red
constexpr Colour light{192, 192, 192};

// As an eye weighs the colours.
int brightness(Colour colour) {
    const auto part = [&](unsigned shift) { return static_cast<int>(colour.rgb >> shift & 0xFFU); };
    return (30 * part(16) + 59 * part(8) + 11 * part(0)) / 100;
}

}  // namespace

void Font::drawOutline(Bitmap& target, Point at, TextView line, Colour colour) const {
    const int breadth = lineHeight() < thickFrom ? 1 : 2;
    for (int y = -breadth; y <= breadth; ++y)
        for (int x = -breadth; x <= breadth; ++x)
            if (x != 0 || y != 0)
                draw(target, at + Point{x, y}, line, brightness(colour) < darkBelow ? light : black);
}

Size Font::measure(TextView text) const {
    Size size{0, 0};
    for (const TextView line : linesOf(text)) {
        size.w = std::max(size.w, width(line));
        size.h += lineHeight();
    }
    return size;
}

}  // namespace zentrox
