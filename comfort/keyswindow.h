// All keys on one page: those of the game, those of the windows, those of the comforts.
#pragma once

#include "comfort/comforts.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/scrollbar.h"
#include "platform/window/window.h"

namespace zentrox {

struct KeyLine {
    TextView label;  // empty: `does` is the title of what follows
    TextView does;
};

class KeyPage : public Control {
public:
    KeyPage(Control* parent, const Rect& area, std::vector<KeyLine> lines);

    TextView kind() const override { return "text"; }
    Text shownText() const override;
    bool scrolls() const { return bar_.needed(); }
    bool takesFocus() const override { return scrolls(); }
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& /*event*/) override { bar_.release(); }
    void pointerLost() override { bar_.release(); }
    void wheel(int lines) override { bar_.setPosition(bar_.position() - lines); }
    bool keyDown(int code, bool shift, bool control) override;
    void paint(Bitmap& onto, Point at) override;

private:
    // A piece of text, in a row of the page and so many pixels from its left edge.
    struct Cell {
        int row = 0;
        int x = 0;
        TextView text;
        bool bold = false;
    };

    const Font& font(bool bold) const;
    int pitch() const;
    int rowsThatFit() const;
    void layOutTwo();
    void layOutOne();

    std::vector<KeyLine> lines_;
    std::vector<Cell> cells_;
    ScrollBar bar_{*this};
};

class KeysWindow : public Window {
public:
    explicit KeysWindow(Comforts& comforts);

private:
    void onOpen() override {
        if (page_.scrolls())
            setFocus(&page_);
        else
            setFocus(&close_);
    }
    void onKeyDown(int code) override;

    KeyPage page_;
    PushButton close_;
};

}  // namespace zentrox
