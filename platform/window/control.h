// What stands in a window: a tree of controls, each painting itself into its window's picture. A control belongs to
// the object that declares it, registers with its parent when it is made and leaves it when it dies.
#pragma once

#include <functional>
#include <vector>

#include "platform/picture/bitmap.h"
#include "platform/values/text.h"

namespace zentrox {

class Window;

enum class Button { none = 0, left = 1, right = 2, middle = 4 };

// A pointer event, in pixels of the control that gets it; they may lie outside it while a button is held.
struct PointerEvent {
    Button button = Button::none;  // the button pressed or released; of a move, the one held
    float x = 0;
    float y = 0;
    int clicks = 1;      // of a press: 2 for the second one of a double click
    bool shift = false;  // of a press: the shift key is held
};

class Control {
public:
    Control(Control* parent, const Rect& area);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    // The name by which the game knows it; empty for what the game never addresses.
    Text name;
    std::function<void(const PointerEvent&)> onDown;
    std::function<void(const PointerEvent&)> onMove;
    std::function<void(const PointerEvent&)> onUp;
    std::function<void()> onClick;  // the left button, pressed and released over it; a button's key as well

    const Rect& area() const { return area_; }  // in pixels of the parent
    void setArea(const Rect& area);
    void moveTo(Point at) { setArea({at, area_.size()}); }
    int width() const { return area_.w; }
    int height() const { return area_.h; }
    // The place in the window's client area.
    Rect areaInWindow() const;

    bool visible() const { return visible_; }  // its own wish; a hidden parent hides it all the same
    void setVisible(bool visible);
    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);

    // The words of the probe: "surface", "label", "button", "picture", "field", "text", "list"; empty for a plain
    // holder of other controls, which is not told.
    virtual TextView kind() const { return {}; }
    // What stands in it, for the probe.
    virtual Text shownText() const { return {}; }
    // True if `part` is in a text printed on it since it was last cleared, or stands in it.
    virtual bool shows(TextView part) const;

    // A short text that shows when the pointer rests on it; empty for none.
    const Text& toolTip() const { return toolTip_; }
    void setToolTip(TextView text);

    Control* parent() const { return parent_; }
    const std::vector<Control*>& children() const { return children_; }
    Window* window() const;

    // Says that `part` of it, in its own pixels, looks different now.
    void changed(const Rect& part);
    void changed() { changed({{0, 0}, area_.size()}); }

    // --- what a kind of control does by itself; the window calls these before the handlers above
    virtual bool takesFocus() const { return false; }
    virtual void focusChanged(bool /*has*/) {}
    virtual void pointerDown(const PointerEvent& /*event*/) {}
    virtual void pointerMove(const PointerEvent& /*event*/) {}
    virtual void pointerUp(const PointerEvent& /*event*/) {}
    // A press has been taken from it: its release will not come.
    virtual void pointerLost() {}
    virtual void wheel(int /*lines*/) {}
    // A key went down, by its virtual code; true if the control has used it up. `shift` and `control` are held
    // keys.
    virtual bool keyDown(int /*code*/, bool /*shift*/, bool /*control*/) { return false; }
    virtual bool keyPress(char /*c*/) { return false; }

    // Paints itself without its children into the window's picture, its top left corner at `at`.
    virtual void paint(Bitmap& /*onto*/, Point /*at*/) {}

private:
    Control* parent_;
    Rect area_;
    bool visible_ = true;
    bool enabled_ = true;
    Text toolTip_;
    std::vector<Control*> children_;

    friend class Window;
    Window* window_ = nullptr;  // of a root only
};

// A holder of other controls, filled with one colour.
class Panel : public Control {
public:
    Panel(Control* parent, const Rect& area, Colour colour = black) : Control(parent, area), colour_(colour) {}
    void paint(Bitmap& onto, Point at) override { onto.fill({at, area().size()}, colour_); }

private:
    Colour colour_;
};

}  // namespace zentrox
