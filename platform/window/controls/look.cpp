#include "platform/window/controls/look.h"

#include "platform/platform.h"
#include "platform/window/window.h"

namespace zentrox::look {

namespace {

// One pixel wide: the upper and the left side in one colour, the lower and the right side, corners included, in
// another.
void frame(Bitmap& onto, const Rect& area, Colour upper, Colour lower) {
    onto.fill({area.x, area.y, area.w - 1, 1}, upper);
    onto.fill({area.x, area.y, 1, area.h - 1}, upper);
    onto.fill({area.x, area.bottom() - 1, area.w, 1}, lower);
    onto.fill({area.right() - 1, area.y, 1, area.h}, lower);
}

}  // namespace

void raised(Bitmap& onto, const Rect& area) {
    frame(onto, area, highlight, darkShadow);
    frame(onto, shrunk(area, 1), light, shadow);
}

void sunken(Bitmap& onto, const Rect& area) {
    frame(onto, area, shadow, highlight);
    frame(onto, shrunk(area, 1), darkShadow, light);
}

void focusDots(Bitmap& onto, const Rect& area) {
    const auto dot = [&](int x, int y) {
        if (((x - area.x + y - area.y) & 1) == 0) onto.invert({x, y, 1, 1});
    };
    for (int x = area.x; x < area.right(); ++x) {
        dot(x, area.y);
        dot(x, area.bottom() - 1);
    }
    for (int y = area.y + 1; y < area.bottom() - 1; ++y) {
        dot(area.x, y);
        dot(area.right() - 1, y);
    }
}

void arrow(Bitmap& onto, const Rect& area, bool up, Colour colour) {
    constexpr int rows = 4;
    const int middle = area.x + (area.w - 1) / 2;
    const int top = area.y + (area.h - rows) / 2;
    for (int i = 0; i < rows; ++i) {
        const int half = up ? i : rows - 1 - i;
        onto.fill({middle - half, top + i, 2 * half + 1, 1}, colour);
    }
}

Rect shrunk(const Rect& area, int by) {
    return {area.x + by, area.y + by, area.w - 2 * by, area.h - 2 * by};
}

const Font& fontFor(const Control& control, const FontSpec& wanted) {
    return control.window()->platform().fonts.get(wanted);
}

const Font& fontFor(const Control& control) {
    static const FontSpec plain;
    return fontFor(control, plain);
}

}  // namespace zentrox::look
