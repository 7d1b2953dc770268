// What a text field and a text box share: a text that is edited, its looks, and what pointer and keys do to it.
// Where its characters stand is theirs to know.
#pragma once

#include "platform/window/controls/edittext.h"
#include "platform/window/controls/look.h"

namespace zentrox {

class TextControl : public Control {
public:
    std::function<void()> onChange;  // a person has changed the text

    const Text& text() const { return edit_.text(); }
    TextView selected() const { return edit_.selected(); }
    std::size_t caret() const { return edit_.caret(); }

    // Black on white with a sunken edge, in the standard font, unless told otherwise.
    void setFont(const FontSpec& font);
    void setColours(Colour text, Colour ground);
    // The text can be scrolled, selected and copied only.
    void setReadOnly(bool on);
    // One that leaves the keys where they are; it takes them at first.
    void setTakesFocus(bool on) { takesFocus_ = on; }

    Text shownText() const override { return text(); }
    bool takesFocus() const override { return takesFocus_; }
    void focusChanged(bool has) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLost() override { selecting_ = false; }
    bool keyDown(int code, bool shift, bool control) override;
    bool keyPress(char c) override;

protected:
    TextControl(Control* parent, const Rect& area, bool lines) : Control(parent, area), edit_(lines) {}

    // The gap between characters that is nearest to a point.
    virtual std::size_t gapAt(Point at) const = 0;
    // The text or the font is another one now: where each character stands has to be found anew.
    virtual void renewed() = 0;
    // The caret or the selection is another one now.
    virtual void moved() = 0;

    const Font& font() const { return look::fontFor(*this, font_); }
    bool readOnly() const { return readOnly_; }
    bool focused() const { return focused_; }
    // Puts a text in place of the selection, as a person does.
    void put(TextView piece);
    void paintGround(Bitmap& onto, Point at) const;
    // A piece of the text that begins with the character `begin`; its corner is at `at`.
    void paintText(Bitmap& onto, Point at, TextView piece) const;
    void paintSelection(Bitmap& onto, Point at, std::size_t begin, TextView piece) const;
    // Where it is to be seen.
    void paintCaret(Bitmap& onto, Point at, std::size_t begin, TextView piece) const;

    EditText edit_;

private:
    void edited();

    FontSpec font_;
    Colour colour_ = look::text;
    Colour ground_ = look::ground;
    bool readOnly_ = false;
    bool takesFocus_ = true;
    bool focused_ = false;
    bool selecting_ = false;  // the left button is held over the text
};

}  // namespace zentrox
