// The way of an input from a window to one of its controls: which has the pointer, and which has the keyboard.
#pragma once

#include "platform/window/control.h"

namespace zentrox {

class Window;

class Routing {
public:
    explicit Routing(Window& window) : window_(window) {}

    // --- what the queue hands in; points are in pixels of the client area
    void down(Point at, Button button, int clicks, bool shift = false);
    void move(Point at, Button held);
    // Goes to the control that got the press of this button, if there is one.
    void up(Point at, Button button);
    void wheel(Point at, int lines);
    // A repeat of a held key reaches the control with the focus only.
    void keyDown(int code, bool shift, bool control, bool repeat = false);
    void keyUp(int code);
    void keyPress(char c);
    // What is held down is this window's no longer: the control that got a press is told.
    void lose();

    Control* focus() const { return focus_; }
    void setFocus(Control* control);
    // The control that the pointer was moved over last, null if none; and where.
    Control* hovered() const { return hovered_; }
    Point hoverAt() const { return hoverAt_; }
    // A control that is about to die.
    void forget(const Control& control);

private:
    bool got(Button button) const { return (pressed_ & static_cast<unsigned>(button)) != 0; }
    void focusNext(bool back);

    Window& window_;
    Control* focus_ = nullptr;
    Control* captured_ = nullptr;  // the one that got a press keeps the pointer until the last release
    unsigned pressed_ = 0;         // the buttons that it has got, by the bits of `Button`
    Control* hovered_ = nullptr;
    Point hoverAt_;
};

}  // namespace zentrox
