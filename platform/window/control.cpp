#include "platform/window/control.h"

#include <algorithm>

#include "platform/window/window.h"

namespace zentrox {

Control::Control(Control* parent, const Rect& area) : parent_(parent), area_(area) {
    if (parent_ == nullptr) return;
    parent_->children_.push_back(this);
    changed();
}

Control::~Control() {
    if (Window* const home = window()) {
        changed();
        home->routing().forget(*this);
    }
    for (Control* const child : children_) child->parent_ = nullptr;
    if (parent_ != nullptr) std::erase(parent_->children_, this);
}

void Control::setArea(const Rect& area) {
    if (area == area_) return;
    changed();
    area_ = area;
    changed();
}

Rect Control::areaInWindow() const {
    Rect area = area_;
    for (const Control* up = parent_; up != nullptr; up = up->parent_) {
        area.x += up->area_.x;
        area.y += up->area_.y;
    }
    return area;
}

void Control::setVisible(bool visible) {
    if (visible == visible_) return;
    changed();
    visible_ = visible;
    changed();
}

void Control::setEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    changed();
}

void Control::setToolTip(TextView text) {
    if (toolTip_ == text) return;
    toolTip_ = text;
    if (Window* const home = window()) home->showToolTip(false);
}

bool Control::shows(TextView part) const {
    return shownText().find(part) != Text::npos;
}

Window* Control::window() const {
    const Control* top = this;
    while (top->parent_ != nullptr) top = top->parent_;
    return top->window_;
}

void Control::changed(const Rect& part) {
    Window* const home = window();
    if (home == nullptr) return;
    Rect seen = intersection(part, {{0, 0}, area_.size()});
    for (const Control* at = this; at != nullptr; at = at->parent_) {
        if (!at->visible_) return;
        seen = intersection(seen, {{0, 0}, at->area_.size()});
        seen.x += at->area_.x;
        seen.y += at->area_.y;
    }
    if (!seen.empty()) home->changed(seen);
}

}  // namespace zentrox
