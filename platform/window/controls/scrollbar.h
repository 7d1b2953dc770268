// The bar at the right edge of a control that shows a part of many lines: two arrows, a track, a thumb. It is no
// control of its own; the control that shows the lines hands it what happens over it.
#pragma once

#include <optional>

#include "platform/window/controls/look.h"
#include "platform/window/queue.h"

namespace zentrox {

class ScrollBar {
public:
    static constexpr int breadth = 16;  // pixels

    explicit ScrollBar(Control& owner) : owner_(owner) {}

    // In pixels of the owner.
    void setArea(const Rect& area) { area_ = area; }
    const Rect& area() const { return area_; }
    // Of how many lines how many show at once. The position is kept within what that allows.
    void setRange(int lines, int page);
    // The line that shows at the top.
    int position() const { return position_; }
    void setPosition(int line);
    bool needed() const { return lines_ > page_; }

    // A press within the area; it holds the pointer until `release`.
    void press(Point at);
    void move(Point at);
    void release();
    bool held() const { return part_ != Part::none; }

    void paint(Bitmap& onto, Point at) const;

private:
    enum class Part { none, up, down, above, below, thumb };

    int last() const { return lines_ > page_ ? lines_ - page_ : 0; }
    int arrowHeight() const;
    Rect track() const;
    Rect thumb() const;
    Part partAt(Point at) const;
    void step();
    void repeat();

    Control& owner_;
    Rect area_;
    int lines_ = 0;
    int page_ = 1;
    int position_ = 0;
    Part part_ = Part::none;
    Point pointer_;
    int grip_ = 0;                 // of a thumb that is dragged: pixels from its top to the pointer
    std::optional<Timer> repeat_;  // while an arrow or the track is held
};

}  // namespace zentrox
