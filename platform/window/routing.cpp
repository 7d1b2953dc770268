#include "platform/window/routing.h"

#include <algorithm>
#include <utility>

#include "platform/values/keys.h"
#include "platform/window/window.h"

namespace zentrox {

namespace {

PointerEvent inControl(const Control& control, Point at, Button button, int clicks) {
    const Rect area = control.areaInWindow();
    return {button, static_cast<float>(at.x - area.x), static_cast<float>(at.y - area.y), clicks};
}

void collectFocusable(Control& control, std::vector<Control*>& into) {
    if (!control.visible() || !control.enabled()) return;
    if (control.takesFocus()) into.push_back(&control);
    for (Control* const child : control.children()) collectFocusable(*child, into);
}

}  // namespace

void Routing::down(Point at, Button button, int clicks, bool shift) {
    Control& hit = captured_ != nullptr ? *captured_ : window_.controlAt(at);
    if (!hit.enabled()) return;
    captured_ = &hit;
    pressed_ |= static_cast<unsigned>(button);
    if (hit.takesFocus()) setFocus(&hit);
    PointerEvent event = inControl(hit, at, button, clicks);
    event.shift = shift;
    hit.pointerDown(event);
    if (captured_ == &hit && hit.onDown) hit.onDown(event);
}

void Routing::move(Point at, Button held) {
    Control& hit = captured_ != nullptr ? *captured_ : window_.controlAt(at);
    if (hovered_ != &hit || at != hoverAt_) window_.showToolTip(false);
    hovered_ = &hit;
    hoverAt_ = at;
    if (!hit.enabled()) return;
    const PointerEvent event = inControl(hit, at, held, 1);
    hit.pointerMove(event);
    if (hovered_ == &hit && hit.onMove) hit.onMove(event);
}

void Routing::up(Point at, Button button) {
    if (captured_ == nullptr || !got(button)) return;
    Control& hit = *captured_;
    pressed_ &= ~static_cast<unsigned>(button);
    if (pressed_ == 0) captured_ = nullptr;
    if (!hit.enabled()) return;
    // A handler may close this window, and the control with it: nothing of either is touched after one has run.
    const PointerEvent event = inControl(hit, at, button, 1);
    const bool over = hit.areaInWindow().contains(at);
    const auto click = button == Button::left && over ? hit.onClick : nullptr;
    const auto released = hit.onUp;
    hit.pointerUp(event);
    if (released) released(event);
    if (click) click();
}

void Routing::wheel(Point at, int lines) {
    Control& hit = window_.controlAt(at);
    if (hit.enabled()) hit.wheel(lines);
}

void Routing::keyDown(int code, bool shift, bool control, bool repeat) {
    Control* const target = focus_;
    if (!repeat) window_.onKeyDown(code);
    if (!window_.isOpen() || target == nullptr || target != focus_ || !target->enabled()) return;
    if (target->keyDown(code, shift, control)) return;
    if (code == key::tab && !control) focusNext(shift);
}

void Routing::keyUp(int code) {
    window_.onKeyUp(code);
}

void Routing::keyPress(char c) {
    Control* const target = focus_;
    window_.onKeyPress(c);
    if (window_.isOpen() && target != nullptr && target == focus_ && target->enabled()) target->keyPress(c);
}

void Routing::lose() {
    pressed_ = 0;
    if (Control* const hit = std::exchange(captured_, nullptr)) hit->pointerLost();
}

void Routing::setFocus(Control* control) {
    if (control == focus_) return;
    if (focus_ != nullptr) focus_->focusChanged(false);
    focus_ = control;
    if (focus_ != nullptr) focus_->focusChanged(true);
}

void Routing::focusNext(bool back) {
    std::vector<Control*> all;
    collectFocusable(window_.root(), all);
    if (all.empty()) return;
    const auto here = std::find(all.begin(), all.end(), focus_);
    if (here == all.end()) return setFocus(back ? all.back() : all.front());
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    const auto next = (here - all.begin() + (back ? count - 1 : 1)) % count;
    setFocus(all[static_cast<std::size_t>(next)]);
}

void Routing::forget(const Control& control) {
    if (focus_ == &control) focus_ = nullptr;
    if (captured_ == &control) {
        captured_ = nullptr;
        pressed_ = 0;
    }
    if (hovered_ == &control) hovered_ = nullptr;
}

}  // namespace zentrox
