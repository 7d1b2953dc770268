#include "platform/window/controls/tooltip.h"

#include <algorithm>

namespace zentrox {

namespace {

constexpr Colour paper{255, 255, 225};
constexpr int marginX = 3;
constexpr int marginY = 2;

}  // namespace

Rect drawToolTip(Bitmap& onto, Fonts& fonts, Point at, TextView text, const Rect& bounds) {
    const Font& font = fonts.get({});
    const Size size = font.measure(text);
    Rect box{at, {size.w + 2 * marginX, size.h + 2 * marginY}};
    box.x = std::max(bounds.x, std::min(box.x, bounds.right() - box.w));
    box.y = std::max(bounds.y, std::min(box.y, bounds.bottom() - box.h));
    onto.fill(box, paper);
    onto.outline(box, black);
    font.draw(onto, box.at() + Point{marginX, marginY}, text, black);
    return box;
}

}  // namespace zentrox
