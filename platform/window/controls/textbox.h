// A text of many lines, to read or to edit, with a scroll bar.
#pragma once

#include <vector>

#include "platform/window/controls/scrollbar.h"
#include "platform/window/controls/textcontrol.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

class TextBox : public TextControl {
public:
    // To be edited. Lines too long are wrapped.
    TextBox(Control* parent, const Rect& area, TextView text = {});

    // Shows it from its first line. The caret stands at its start.
    void setText(TextView text);
    // Adds to the end, brings the caret there, and scrolls so far that it is seen.
    void append(TextView text);

    // The line, as wrapped, that shows at the top; how many show, and how many there are.
    int topLine() const { return bar_.position(); }
    void scrollTo(int line) { bar_.setPosition(line); }
    int visibleLines() const;
    int lineCount() const { return static_cast<int>(lines_.size()); }

    TextView kind() const override { return "text"; }
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLost() override;
    void wheel(int lines) override;
    bool keyDown(int code, bool shift, bool control) override;
    void paint(Bitmap& onto, Point at) override;

private:
    Rect inside() const;
    TextView lineText(std::size_t line) const;
    std::size_t lineOf(std::size_t place) const;
    int caretX() const;
    std::size_t gapAt(Point at) const override;
    void wrap();
    void scrollToCaret();
    void renewed() override;
    void moved() override;
    bool scrollByKey(int code);
    bool moveByLine(int code, bool shift, bool control);

    std::vector<TextLine> lines_;
    ScrollBar bar_{*this};
    int wishedX_ = 0;  // where the caret would stand in a line that is long enough
};

}  // namespace zentrox
