// The classic grey look that all controls share: its colours, its bevelled edges, its dots.
#pragma once

#include "platform/picture/font.h"
#include "platform/window/control.h"

namespace zentrox::look {

constexpr Colour face{192, 192, 192};
constexpr Colour light{223, 223, 223};
constexpr Colour highlight{255, 255, 255};
constexpr Colour shadow{128, 128, 128};
constexpr Colour darkShadow{0, 0, 0};
constexpr Colour text{0, 0, 0};
constexpr Colour greyText{128, 128, 128};
constexpr Colour ground{255, 255, 255};
constexpr Colour selection{0, 0, 128};
constexpr Colour selectedText{255, 255, 255};

constexpr int edge = 2;  // pixels of a bevelled edge

// Two-pixel edges just inside of `area`.
void raised(Bitmap& onto, const Rect& area);
void sunken(Bitmap& onto, const Rect& area);
// The dotted line round what has the focus, just inside of `area`.
void focusDots(Bitmap& onto, const Rect& area);
// A small black triangle in the middle of `area`, its point upward or downward.
void arrow(Bitmap& onto, const Rect& area, bool up, Colour colour);

// `area` without `by` pixels at each side.
Rect shrunk(const Rect& area, int by);

// A font for a control that stands in a window.
const Font& fontFor(const Control& control, const FontSpec& wanted);
// The small font of texts that say nothing else.
const Font& fontFor(const Control& control);

// Holds all drawing to `part` of what was allowed before, for the length of a scope.
class Clip {
public:
    Clip(Bitmap& bitmap, const Rect& part) : bitmap_(bitmap), before_(bitmap.clip()) {
        bitmap_.setClip(intersection(before_, part));
    }
    ~Clip() { bitmap_.setClip(before_); }
    Clip(const Clip&) = delete;
    Clip& operator=(const Clip&) = delete;
    bool empty() const { return bitmap_.clip().empty(); }

private:
    Bitmap& bitmap_;
    Rect before_;
};

}  // namespace zentrox::look
