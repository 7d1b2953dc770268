// All keys on one page: those of the game, those of the windows, those of the comforts.
#pragma once

#include "comfort/comforts.h"
#include "platform/window/controls/button.h"
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
    void paint(Bitmap& onto, Point at) override;

private:
    std::vector<KeyLine> lines_;
};

class KeysWindow : public Window {
public:
    explicit KeysWindow(Comforts& comforts);

private:
    void onOpen() override { setFocus(&close_); }
    void onKeyDown(int code) override;

    KeyPage page_;
    PushButton close_;
};

}  // namespace zentrox
