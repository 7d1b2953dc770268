// A text field of one line.
#pragma once

#include "platform/window/controls/edittext.h"
#include "platform/window/controls/look.h"

namespace zentrox {

class Field : public Control {
public:
    // Black on white with a sunken edge, in the standard font.
    Field(Control* parent, const Rect& area, TextView text = {});

    std::function<void()> onEnter;
    std::function<void()> onChange;  // a person has changed the text

    const Text& text() const { return edit_.text(); }
    // What stands behind a line end is left out. The caret goes to the end; nobody is told.
    void setText(TextView text);
    void selectAll();
    TextView selected() const { return edit_.selected(); }
    std::size_t caret() const { return edit_.caret(); }

    void setFont(const FontSpec& font);
    void setColours(Colour text, Colour ground);
    // At most so many characters can be typed or pasted; 0 for any number.
    void setMaximum(std::size_t characters) { edit_.setMaximum(characters); }
    // The text can be selected and copied only.
    void setReadOnly(bool on);
    // A field that leaves the keys where they are; it takes them at first.
    void setTakesFocus(bool on) { takesFocus_ = on; }

    TextView kind() const override { return "field"; }
    Text shownText() const override { return edit_.text(); }
    bool takesFocus() const override { return takesFocus_; }
    void focusChanged(bool has) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    bool keyDown(int code, bool shift, bool control) override;
    bool keyPress(char c) override;
    void paint(Bitmap& onto, Point at) override;

private:
    Rect inside() const;
    std::size_t gapAt(float x) const;
    void renewed();
    void edited();

    EditText edit_{false};
    FontSpec font_;
    Colour colour_ = look::text;
    Colour ground_ = look::ground;
    bool readOnly_ = false;
    bool takesFocus_ = true;
    bool focused_ = false;
    bool selecting_ = false;  // the left button is held
    int scroll_ = 0;          // pixels of the text that lie left of what shows
};

}  // namespace zentrox
