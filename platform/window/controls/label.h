// A text that only stands there. It can be clicked like anything else.
#pragma once

#include <optional>

#include "platform/window/controls/look.h"

namespace zentrox {

class Label : public Control {
public:
    enum class Align { left, centre, right };

    // Black on what lies under it, left aligned, in the standard font; lines too wide for the area are wrapped.
    Label(Control* parent, const Rect& area, TextView text = {});

    const Text& text() const { return text_; }
    void setText(TextView text);
    const FontSpec& font() const { return font_; }
    void setFont(const FontSpec& font);
    Colour colour() const { return colour_; }
    void setColour(Colour colour);
    // Nothing lets show what lies under it.
    const std::optional<Colour>& ground() const { return ground_; }
    void setGround(std::optional<Colour> ground);
    void setAlign(Align align);
    // With it on, the label has the size of its text, whose lines are not wrapped; its left upper corner stays.
    void setAutoSize(bool on);
    // It stands on a picture: its letters have an outline where the player wants that. Not so at first.
    void setOnPicture(bool on);
    // Whether it looks grey while it is disabled; not so at first.
    void setGreys(bool on);

    TextView kind() const override { return "label"; }
    Text shownText() const override { return text_; }
    void paint(Bitmap& onto, Point at) override;

private:
    void renewed();

    Text text_;
    FontSpec font_;
    Colour colour_ = look::text;
    std::optional<Colour> ground_;
    Align align_ = Align::left;
    bool autoSize_ = false;
    bool greys_ = false;
    bool onPicture_ = false;
};

}  // namespace zentrox
