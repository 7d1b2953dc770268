#include "platform/window/controls/label.h"

#include <limits>

#include "platform/platform.h"
#include "platform/window/controls/textlayout.h"
#include "platform/window/window.h"

namespace zentrox {

Label::Label(Control* parent, const Rect& area, TextView text) : Control(parent, area), text_(text) {}

void Label::setText(TextView text) {
    if (text == text_) return;
    text_ = text;
    renewed();
}

void Label::setFont(const FontSpec& font) {
    if (font == font_) return;
    font_ = font;
    renewed();
}

void Label::setColour(Colour colour) {
    colour_ = colour;
    changed();
}

void Label::setGround(std::optional<Colour> ground) {
    ground_ = ground;
    changed();
}

void Label::setAlign(Align align) {
    align_ = align;
    changed();
}

void Label::setAutoSize(bool on) {
    autoSize_ = on;
    renewed();
}

void Label::setOnPicture(bool on) {
    onPicture_ = on;
    changed();
}

void Label::setGreys(bool on) {
    greys_ = on;
    changed();
}

void Label::renewed() {
    if (autoSize_) setArea({area().at(), look::fontFor(*this, font_).measure(text_)});
    changed();
}

void Label::paint(Bitmap& onto, Point at) {
    if (ground_) onto.fill({at, area().size()}, *ground_);
    const Font& font = look::fontFor(*this, font_);
    const bool grey = greys_ && !enabled();
    int y = at.y;
    for (const TextLine& line : wrapText(font, text_, autoSize_ ? std::numeric_limits<int>::max() - 1 : width())) {
        TextView piece = TextView(text_).substr(line.begin, line.end - line.begin);
        if (align_ != Align::left) piece = piece.substr(0, piece.find_last_not_of(' ') + 1);
        const int room = align_ == Align::left ? 0 : width() - font.width(piece);
        const Point to{at.x + (align_ == Align::centre ? room / 2 : room), y};
        if (onPicture_ && window()->platform().outlinedLetters) font.drawOutline(onto, to, piece, colour_);
        if (grey) font.draw(onto, to + Point{1, 1}, piece, look::highlight);
        font.draw(onto, to, piece, grey ? look::greyText : colour_);
        y += font.lineHeight();
    }
}

}  // namespace zentrox
