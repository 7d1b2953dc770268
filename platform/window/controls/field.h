// A text field of one line.
#pragma once

#include "platform/window/controls/textcontrol.h"

namespace zentrox {

class Field : public TextControl {
public:
    Field(Control* parent, const Rect& area, TextView text = {});

    std::function<void()> onEnter;

    // What stands behind a line end is left out. The caret goes to the end; nobody is told.
    void setText(TextView text);
    void selectAll();
    // At most so many characters can be typed or pasted; 0 for any number.
    void setMaximum(std::size_t characters) { edit_.setMaximum(characters); }

    TextView kind() const override { return "field"; }
    bool keyDown(int code, bool shift, bool control) override;
    void paint(Bitmap& onto, Point at) override;

private:
    Rect inside() const;
    std::size_t gapAt(Point at) const override;
    void renewed() override { moved(); }
    void moved() override;

    int scroll_ = 0;  // pixels of the text that lie left of what shows
};

}  // namespace zentrox
