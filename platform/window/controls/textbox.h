// A text of many lines, to read or to edit, with a scroll bar.
#pragma once

#include <vector>

#include "platform/window/controls/edittext.h"
#include "platform/window/controls/scrollbar.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

class TextBox : public Control {
public:
    // Black on white with a sunken edge, in the standard font, to be edited. Lines too long are wrapped.
    TextBox(Control* parent, const Rect& area, TextView text = {});

    std::function<void()> onChange;  // a person has changed the text

    const Text& text() const { return edit_.text(); }
    // Shows it from its first line. The caret stands at its start.
    void setText(TextView text);
    // Adds to the end, brings the caret there, and scrolls so far that it is seen.
    void append(TextView text);
    TextView selected() const { return edit_.selected(); }

    // The line, as wrapped, that shows at the top; how many show, and how many there are.
    int topLine() const { return bar_.position(); }
    void scrollTo(int line) { bar_.setPosition(line); }
    int visibleLines() const;
    int lineCount() const { return static_cast<int>(lines_.size()); }

    void setFont(const FontSpec& font);
    void setColours(Colour text, Colour ground);
    // The text can be scrolled, selected and copied only.
    void setReadOnly(bool on);
    // A box that leaves the keys where they are; it takes them at first.
    void setTakesFocus(bool on) { takesFocus_ = on; }

    TextView kind() const override { return "text"; }
    Text shownText() const override { return edit_.text(); }
    bool takesFocus() const override { return takesFocus_; }
    void focusChanged(bool has) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void wheel(int lines) override;
    bool keyDown(int code, bool shift, bool control) override;
    bool keyPress(char c) override;
    void paint(Bitmap& onto, Point at) override;

private:
    Rect inside() const;
    const Font& font() const { return look::fontFor(*this, font_); }
    TextView lineText(std::size_t line) const;
    std::size_t lineOf(std::size_t place) const;
    int caretX() const;
    std::size_t gapAt(Point at) const;
    void wrap();
    void scrollToCaret();
    void moved();
    void edited();
    bool scrollByKey(int code);
    bool moveByLine(int code, bool shift, bool control);
    void paintLine(Bitmap& onto, Point at, std::size_t line);

    EditText edit_{true};
    std::vector<TextLine> lines_;
    ScrollBar bar_{*this};
    FontSpec font_;
    Colour colour_ = look::text;
    Colour ground_ = look::ground;
    bool readOnly_ = false;
    bool takesFocus_ = true;
    bool focused_ = false;
    bool selecting_ = false;  // the left button is held over the text
    int wishedX_ = 0;         // where the caret would stand in a line that is long enough
};

}  // namespace zentrox
