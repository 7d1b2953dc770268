// A surface: the thing that rooms and games are drawn on. It has a stored image, a `picture` underneath, and what
// is on the screen. It may stand in a window or be a picture in memory that nobody sees.
#pragma once

#include <optional>
#include <vector>

#include "platform/picture/font.h"
#include "platform/window/control.h"

namespace zentrox {

class Surface : public Control {
public:
    // A hidden surface of its own.
    Surface(Fonts& fonts, Size size, Colour back = black);
    // A surface in a window.
    Surface(Fonts& fonts, Control* parent, const Rect& area, Colour back = black);

    // With it on, all drawing goes to the stored image, and the screen shows that. With it off, drawing goes to the
    // screen only, and the next change of the stored image shows the whole of that again.
    bool autoRedraw() const { return autoRedraw_; }
    void setAutoRedraw(bool on);
    // Shows the stored image again.
    void refresh();

    // The stored image, with what was drawn into it.
    const Bitmap& image() const { return image_; }
    // What a person sees: the stored image, and what was drawn past it.
    const Bitmap& screen() const { return screen_.empty() ? image_ : screen_; }

    Colour back() const { return back_; }
    // Takes effect with the next clearing.
    void setBack(Colour colour) { back_ = colour; }
    // Removes what was drawn; the picture stays, or the back colour where there is none. The cursor goes to the top
    // left corner.
    void clear();
    // Replaces the picture, and with it the stored image. What of the picture lies outside the surface is cut;
    // where it does not reach, the back colour shows.
    void setPicture(const Bitmap& picture);
    // The same, and the surface takes the picture's size.
    void takePicture(Bitmap picture);
    void removePicture();
    // A new size. The stored image keeps what still fits; new ground has the back colour.
    void resize(Size size);

    // Boxes are given by two corners in any order, edges included.
    void box(Point a, Point b, Colour colour);
    void outline(Point a, Point b, Colour colour);
    void invertBox(Point a, Point b);
    void line(Point a, Point b, Colour colour);
    void circle(Point centre, int radius, Colour colour);
    void copy(const Bitmap& source, const Rect& from, Point to, Op op = Op::plain);
    void stretch(const Bitmap& source, const Rect& from, const Rect& to, Op op = Op::plain);
    // 0x00RRGGBB of what drawing would change now, -1 outside.
    std::int32_t pixel(Point p) const { return target().pixel(p); }
    void setPixel(Point p, Colour colour);

    // Text goes to the cursor; its top left corner stands there.
    FontSpec font;
    Colour foreground = white;
    int currentX = 0;
    int currentY = 0;
    // Prints the lines of a text, the first at the cursor and the others from the left edge, and leaves the cursor
    // at the left edge of the line below the last one.
    void print(TextView text);
    // Prints a text without line ends at a place; the cursor ends behind it.
    void printAt(Point at, TextView text, Colour colour);
    // Draws the outline of letters that will be printed there, see `Font::drawOutline`.
    void outlineAt(Point at, TextView text, Colour colour);
    int textWidth(TextView text) const { return measure(text).w; }
    int textHeight(TextView text) const { return measure(text).h; }
    Size measure(TextView text) const { return fonts_.get(font).measure(text); }

    TextView kind() const override { return "surface"; }
    bool shows(TextView part) const override;
    // The texts that were printed on it since it was last cleared, each once, the oldest forgotten.
    const std::vector<Text>& printed() const { return printed_; }
    void paint(Bitmap& onto, Point at) override;

private:
    // What drawing goes to: the stored image, or a copy of it that is the screen.
    Bitmap& target();
    const Bitmap& target() const { return autoRedraw_ ? image_ : screen(); }
    // Notes that `part` of the target looks different.
    void drawn(const Rect& part);
    void printLine(TextView line);
    // Keeps a printed text for `shows`; the oldest are forgotten.
    void remember(TextView text);
    // The surface as clearing leaves it: the picture over the back colour.
    void layGround(Bitmap& onto) const;
    void adopt(Bitmap picture);
    void keepPicture();

    Fonts& fonts_;
    Colour back_;
    bool autoRedraw_ = true;
    std::optional<Bitmap> picture_;
    bool untouched_ = false;  // the image is the picture, which is then not kept a second time
    Bitmap image_;
    Bitmap screen_;  // empty as long as it would equal the stored image
    std::vector<Text> printed_;
};

}  // namespace zentrox
