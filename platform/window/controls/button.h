// A push button with a caption. `onClick` runs when it is clicked, or pressed by Enter or space while it has the
// focus.
#pragma once

#include "platform/window/controls/look.h"

namespace zentrox {

class PushButton : public Control {
public:
    PushButton(Control* parent, const Rect& area, TextView caption);

    const Text& caption() const { return caption_; }
    void setCaption(TextView caption);
    void setFont(const FontSpec& font);
    // Only the look of it: the black frame of the button that Enter means.
    void setDefault(bool on);
    // A button that leaves the keys where they are, for games; it takes them at first.
    void setTakesFocus(bool on) { takesFocus_ = on; }

    TextView kind() const override { return "button"; }
    Text shownText() const override { return caption_; }
    bool takesFocus() const override { return takesFocus_; }
    void focusChanged(bool has) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLost() override;
    bool keyDown(int code, bool shift, bool control) override;
    void paint(Bitmap& onto, Point at) override;

private:
    void setPressed(bool pressed);
    bool over(const PointerEvent& event) const;

    Text caption_;
    FontSpec font_;
    bool default_ = false;
    bool takesFocus_ = true;
    bool focused_ = false;
    bool held_ = false;     // the left button went down on it and has not come up
    bool pressed_ = false;  // held, and the pointer over it
};

}  // namespace zentrox
