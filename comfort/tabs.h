// The names of pages side by side, one of which stands open.
#pragma once

#include <functional>
#include <vector>

#include "platform/window/controls/look.h"

namespace zentrox {

class Tabs : public Control {
public:
    // `onTurn` is told of the page that a person has opened.
    Tabs(Control* parent, const Rect& area, std::vector<Text> names, std::function<void(std::size_t)> onTurn);

    std::size_t page() const { return page_; }
    // So many pages on, round the end.
    void turn(int by);

    TextView kind() const override { return "list"; }
    Text shownText() const override;
    bool takesFocus() const override { return true; }
    void focusChanged(bool has) override;
    void pointerDown(const PointerEvent& event) override;
    bool keyDown(int code, bool shift, bool control) override;
    void paint(Bitmap& onto, Point at) override;

private:
    void open(std::size_t page);
    Rect tab(std::size_t index) const;

    std::vector<Text> names_;
    std::function<void(std::size_t)> onTurn_;
    std::size_t page_ = 0;
    bool focused_ = false;
};

// The ground of the open page, below the tabs.
class PageGround : public Control {
public:
    using Control::Control;
    void paint(Bitmap& onto, Point at) override { look::raised(onto, {at, area().size()}); }
};

}  // namespace zentrox
