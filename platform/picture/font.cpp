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

// It comes as a picture: a part of what the letters stand on, and no letters itself.
void Font::drawOutline(Bitmap& target, Point at, TextView line, Colour colour) const {
    const int breadth = lineHeight() < thickFrom ? 1 : 2;
    const Colour round = brightness(colour) < darkBelow ? light : black;
    const int lean = lineHeight() / 2;
    const Rect whole{at.x - lean, at.y - lean, width(line) + 2 * lean, lineHeight() + 2 * lean};
    const Rect area = intersection(whole, target.clip());
    if (area.empty()) return;
    Bitmap piece(area.size());
    for (int y = 0; y < area.h; ++y) std::copy_n(target.row(area.y + y) + area.x, area.w, piece.row(y));
    for (int y = -breadth; y <= breadth; ++y)
        for (int x = -breadth; x <= breadth; ++x)
            if (x != 0 || y != 0) ink(piece, at - area.at() + Point{x, y}, line, round);
    target.copy(piece, piece.bounds(), area.at());
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
