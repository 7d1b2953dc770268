// Windows: a frame, a title, a tree of controls that make one picture. A window lives on the stack of the call that
// shows it. Input goes to the topmost one only; the timers of those below keep running.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/window/control.h"
#include "platform/window/routing.h"

namespace zentrox {

class Platform;

enum class Frame {
    sizable,  // a title, a close box, edges that can be dragged
    fixed,    // a title and a close box
    dialog,   // the same for a question about the window below; not in the task bar, never full screen
    thin,     // an edge, no title
    none,
};

// What the pointer looks like over a window.
struct Pointer {
    enum class Mode { arrow, question, invisible, own };
    Mode mode = Mode::arrow;
    Text iconFile;  // of mode `own`: the game path of the icon
    friend bool operator==(const Pointer&, const Pointer&) = default;
};

class Window {
public:
    // `name` is the game's own name of it. It opens centred on its owner (the window below), else on the screen.
    Window(Platform& platform, TextView name, TextView title, Size client, Frame frame);
    // Closes it if it is still open.
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    Platform& platform() const { return platform_; }
    const Text& name() const { return name_; }
    const Text& title() const { return title_; }
    void setTitle(TextView title);
    Frame frame() const { return frame_; }
    Size client() const { return root_.area().size(); }
    Panel& root() { return root_; }

    // The smallest client area that a person can give it; of a `sizable` one only.
    Size minimum{1, 1};
    // Full screen gives a sizable window a larger client area. Calls `onResize`.
    void resizeClient(Size size);

    // Puts it on top of all others and calls `onOpen`.
    void open();
    // Takes it off the screen. It can't be opened again.
    void close();
    bool isOpen() const { return open_; }
    // Opens it and serves the queue until it is closed.
    void showModal();
    // What a person's close box does: asks `onQueryClose`, then closes.
    void requestClose();

    const Pointer& pointer() const { return pointer_; }
    void setPointer(const Pointer& pointer);

    // The topmost visible and enabled control at a point of the client area that has something of its own; the root
    // where there is none.
    Control& controlAt(Point p);
    // The control of that name in the tree, null if there is none.
    Control* find(TextView name);
    Control* focus() const { return routing_.focus(); }
    void setFocus(Control* control) { routing_.setFocus(control); }
    // Hands input to the controls.
    Routing& routing() { return routing_; }
    const Routing& routing() const { return routing_; }

    // Brings the picture up to date and gives it.
    const Bitmap& compose();
    // What of the picture has changed since this was asked last.
    Rect takeNews();
    bool stale() const { return !stale_.empty(); }
    void changed(const Rect& part) { stale_ = united(stale_, part); }

    // --- events, each called from a turn of the queue
    virtual void onOpen() {}
    virtual void onResize() {}
    // False keeps it open.
    virtual bool onQueryClose() { return true; }
    virtual void onKeyDown(int /*code*/) {}
    virtual void onKeyUp(int /*code*/) {}
    virtual void onKeyPress(char /*c*/) {}
    // What was held down when this came is not told of any more: neither a release nor a key's repeats.
    virtual void onHeldLost() {}

    // The tool tip of the control under the pointer, drawn over all controls.
    void showToolTip(bool show);
    bool toolTipShown() const { return toolTipShown_; }
    // Texts that stand in it, for the probe.
    bool shows(TextView part) const;

private:
    void paintTree(Control& control, Point at, const Rect& clip);

    Platform& platform_;
    Text name_;
    Text title_;
    Frame frame_;
    Panel root_;
    Pointer pointer_;
    Bitmap picture_;
    Rect stale_;
    Rect news_;
    bool open_ = false;
    Routing routing_{*this};
    bool toolTipShown_ = false;
    Rect toolTipArea_;
};

}  // namespace zentrox
