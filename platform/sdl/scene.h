// The game's windows in one picture: the bottommost one below, those above it over its picture with their frames.
// Knows nothing of the window system.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/picture/letters.h"
#include "platform/sdl/layout.h"

namespace zentrox::sdl {

class Scene {
public:
    void opened(Window& window);
    void closed(Window& window);
    bool empty() const { return shown_.empty(); }
    Window* base() const { return shown_.empty() ? nullptr : shown_.front().window; }
    Window* top() const { return shown_.empty() ? nullptr : shown_.back().window; }
    // From the bottommost to the topmost.
    std::vector<Tenant> tenants() const;

    // Places all windows anew; all has to be shown again then.
    void layOut(const Ground& ground);
    double scale() const { return layout_.scale; }

    // Points are pixels of the screen. What stands there of the topmost window; its pixel there.
    Place placeAt(Point p) const;
    Point inTop(Point p) const;
    // Moves the topmost window by its title bar, which the pointer took hold of at `grip` of its client area.
    void dragTop(Point to, Point grip);
    void pressCloseBox(bool down);

    // Draws over the windows, in pixels of the game, whenever a part is shown anew, held to that part. `base` is
    // where the bottommost window's client area stands, `top` the topmost one's. The game knows nothing of it.
    std::function<void(Bitmap& picture, const Rect& base, const Rect& top)> overlay;

    // Whether letters that were noted are drawn in the screen's pixels and not enlarged.
    void setFineLetters(bool on);

    // True if something would look different after `paint`.
    bool stale() const;
    void expose() { exposed_ = true; }
    bool exposed() const { return exposed_; }
    // Brings the picture up to date and enlarges what is new of it onto the screen's pixels; gives that part of
    // them.
    Rect paint(const Pixels& screen);

private:
    struct Shown {
        Window* window = nullptr;
        std::optional<Point> put;
    };

    Point onCanvas(Point p) const;
    bool hiddenByOthers(std::size_t index, const Rect& part) const;
    Rect collectNews();
    void compose(const Rect& part);
    Rect enlarged(const Rect& area) const;
    Rect paintFine(Rect part, const Pixels& screen);

    std::vector<Shown> shown_;  // the topmost one is the last
    Ground ground_;
    Layout layout_;
    Bitmap canvas_;  // pixels of the game
    Enlarger enlarger_;
    LetterLift lift_;
    bool fineLetters_ = false;
    bool exposed_ = true;  // all of it has to be shown
    bool closeDown_ = false;
};

}  // namespace zentrox::sdl
