// Fonts by family, size and weight, measured and drawn into bitmaps.
#pragma once

#include <memory>

#include "platform/picture/enlarge.h"
#include "platform/picture/letters.h"
#include "platform/values/text.h"

namespace zentrox {

struct FontSpec {
    Text family = "MS Sans Serif";
    float points = 8.25F;  // 96 pixels to the inch, 72 points to the inch
    bool bold = false;
    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

class Font {
public:
    virtual ~Font() = default;

    // Pixels from the top of one line to the top of the next.
    virtual int lineHeight() const = 0;
    // Pixels that the pen moves over a text without line ends. It is the sum over its characters.
    virtual int width(TextView line) const = 0;
    // Draws a text without line ends, its top left corner at `at`, the background left as it is. Letters may lean
    // out of their cell by less than a line's height.
    virtual void draw(Bitmap& target, Point at, TextView line, Colour colour) const = 0;

    // Draws what stands round the letters of such a text, so that they read on any ground: black round light ones,
    // light round dark ones. To be called before they are drawn.
    void drawOutline(Bitmap& target, Point at, TextView line, Colour colour) const;

    // For letters that are noted, see `Letters`. The same as `draw`, unnoted.
    virtual void ink(Bitmap& target, Point at, TextView line, Colour colour) const {
        draw(target, at, line, colour);
    }
    // One of them as it looks `scale` times as large, on the enlarged pixels of a picture whose corner stands at
    // `corner`; `at` is meant in the picture's pixels. Drawing is held to `clip`.
    virtual void inkLarge(const Pixels& /*target*/, const Rect& /*clip*/, Point /*corner*/, double /*scale*/,
                          const Letter& /*letter*/) const {}

    // The widest line, and the height of all lines as `linesOf` parts them.
    Size measure(TextView text) const;
};

// Gives the fonts that are asked for and keeps them. A family that the system lacks has a stand-in.
class Fonts {
public:
    virtual ~Fonts() = default;
    // Points are rounded to whole pixels, at least 1 and at most 400.
    virtual const Font& get(const FontSpec& wanted) = 0;
    // No font at all is on this machine: the program's own one stands in for all.
    virtual bool lacking() const { return false; }
    // Whether letters are noted where they are drawn. Not so at first.
    virtual void setNotes(bool /*on*/) {}
};

std::unique_ptr<Fonts> makeFonts();

}  // namespace zentrox
