// A window with one control in it, to be played with as a person would.
#pragma once

#include "platform/window/window.h"
#include "tests/support/stage.h"

namespace zentrox::test {

struct Playground : Stage {
    Window window{platform, "Probe", "", {400, 300}, Frame::fixed};

    void key(int code, bool shift = false, bool control = false) {
        window.routing().keyDown(code, shift, control);
        window.routing().keyUp(code);
    }
    void type(TextView text) {
        for (const char c : text) window.routing().keyPress(c);
    }
    void press(Point at, int clicks = 1) {
        window.routing().move(at, Button::none);
        window.routing().down(at, Button::left, clicks);
    }
    void drag(Point to) { window.routing().move(to, Button::left); }
    void release(Point at) { window.routing().up(at, Button::left); }
    void click(Point at, int clicks = 1) {
        press(at, clicks);
        release(at);
    }
};

}  // namespace zentrox::test
