#include "platform/window/window.h"

#include <algorithm>
#include <cmath>

#include "platform/platform.h"
#include "platform/values/keys.h"
#include "platform/window/controls/tooltip.h"

namespace zentrox {

namespace {

constexpr Colour face{192, 192, 192};
constexpr int toolTipDrop = 20;  // pixels below the pointer's hot spot

}  // namespace

Window::Window(Platform& platform, TextView name, TextView title, Size client, Frame frame)
    : platform_(platform),
      name_(name),
      title_(title),
      frame_(frame),
      root_(nullptr, {{0, 0}, client}, face) {
    root_.window_ = this;
    picture_ = Bitmap(client, face);
    stale_ = picture_.bounds();
}

Window::~Window() {
    if (open_) close();
    root_.window_ = nullptr;
}

void Window::setTitle(TextView title) {
    title_ = title;
    if (open_) platform_.backend.reshaped(*this);
}

void Window::resizeClient(Size size) {
    size = {std::max({size.w, minimum.w, 1}), std::max({size.h, minimum.h, 1})};
    const bool another = size != client();
    if (another) {
        root_.setArea({{0, 0}, size});
        picture_ = Bitmap(size, face);
        stale_ = picture_.bounds();
        onResize();
    }
    if (open_) platform_.backend.reshaped(*this);
}

void Window::open() {
    platform_.queue.windows_.push_back(this);
    open_ = true;
    platform_.backend.opened(*this);
    onOpen();
}

void Window::close() {
    if (!open_) return;
    open_ = false;
    std::erase(platform_.queue.windows_, this);
    platform_.queue.forgetToolTip();
    platform_.backend.closed(*this);
}

void Window::showModal() {
    open();
    platform_.queue.waitUntil(name_, [this] { return !open_; });
}

void Window::requestClose() {
    if (onQueryClose()) close();
}

void Window::setPointer(const Pointer& pointer) {
    if (pointer == pointer_) return;
    pointer_ = pointer;
    if (open_) platform_.backend.pointerChanged(*this);
}

namespace {

Control* topmostAt(Control& control, Point p) {
    const auto& children = control.children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        if (!(*child)->visible() || !(*child)->area().contains(p)) continue;
        return topmostAt(**child, p - (*child)->area().at());
    }
    return &control;
}

Control* named(Control& control, TextView name) {
    if (control.name == name) return &control;
    for (Control* const child : control.children())
        if (Control* const hit = named(*child, name)) return hit;
    return nullptr;
}

bool showsIn(const Control& control, TextView part) {
    if (!control.visible()) return false;
    if (control.shows(part)) return true;
    return std::any_of(control.children().begin(), control.children().end(),
                       [part](const Control* child) { return showsIn(*child, part); });
}

void collectFocusable(Control& control, std::vector<Control*>& into) {
    if (!control.visible() || !control.enabled()) return;
    if (control.takesFocus()) into.push_back(&control);
    for (Control* const child : control.children()) collectFocusable(*child, into);
}

}  // namespace

Control& Window::controlAt(Point p) {
    return *topmostAt(root_, p);
}

Control* Window::find(TextView name) {
    return name.empty() ? nullptr : named(root_, name);
}

bool Window::shows(TextView part) const {
    return showsIn(root_, part);
}

void Window::setFocus(Control* control) {
    if (control == focus_) return;
    if (focus_ != nullptr) focus_->focusChanged(false);
    focus_ = control;
    if (focus_ != nullptr) focus_->focusChanged(true);
}

void Window::focusNext(bool back) {
    std::vector<Control*> all;
    collectFocusable(root_, all);
    if (all.empty()) return;
    const auto here = std::find(all.begin(), all.end(), focus_);
    if (here == all.end()) return setFocus(back ? all.back() : all.front());
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    const auto next = (here - all.begin() + (back ? count - 1 : 1)) % count;
    setFocus(all[static_cast<std::size_t>(next)]);
}

void Window::forget(Control& control) {
    if (focus_ == &control) focus_ = nullptr;
    if (captured_ == &control) captured_ = nullptr;
    if (hovered_ == &control) hovered_ = nullptr;
}

void Window::paintTree(Control& control, Point at, const Rect& clip) {
    const Rect seen = intersection(clip, {at, control.area().size()});
    if (!control.visible() || seen.empty()) return;
    picture_.setClip(seen);
    control.paint(picture_, at);
    for (Control* const child : control.children()) paintTree(*child, at + child->area().at(), seen);
}

const Bitmap& Window::compose() {
    if (stale_.empty()) return picture_;
    const Rect part = intersection(stale_, picture_.bounds());
    stale_ = {};
    paintTree(root_, {0, 0}, part);
    if (toolTipShown_ && hovered_ != nullptr) {
        picture_.setClip(picture_.bounds());
        toolTipArea_ = drawToolTip(picture_, platform_.fonts, hoverAt_ + Point{0, toolTipDrop}, hovered_->toolTip(),
                                   picture_.bounds());
        news_ = united(news_, toolTipArea_);
    }
    picture_.setClip(picture_.bounds());
    news_ = united(news_, part);
    return picture_;
}

Rect Window::takeNews() {
    const Rect news = news_;
    news_ = {};
    return news;
}

void Window::showToolTip(bool show) {
    if (show == toolTipShown_) return;
    toolTipShown_ = show && hovered_ != nullptr && !hovered_->toolTip().empty();
    changed(toolTipShown_ ? Rect{hoverAt_, {1, 1}} : toolTipArea_);
}

PointerEvent Window::inControl(const Control& control, Point at, Button button, int clicks) const {
    const Rect area = control.areaInWindow();
    return {button, static_cast<float>(at.x - area.x), static_cast<float>(at.y - area.y), clicks};
}

void Window::deliverDown(Point at, Button button, int clicks) {
    Control& hit = controlAt(at);
    if (!hit.enabled()) return;
    captured_ = &hit;
    if (hit.takesFocus()) setFocus(&hit);
    const PointerEvent event = inControl(hit, at, button, clicks);
    hit.pointerDown(event);
    if (captured_ == &hit && hit.onDown) hit.onDown(event);
}

void Window::deliverMove(Point at, Button held) {
    Control& hit = captured_ != nullptr ? *captured_ : controlAt(at);
    if (hovered_ != &hit || at != hoverAt_) showToolTip(false);
    hovered_ = &hit;
    hoverAt_ = at;
    if (!hit.enabled()) return;
    const PointerEvent event = inControl(hit, at, held, 1);
    hit.pointerMove(event);
    if (hovered_ == &hit && hit.onMove) hit.onMove(event);
}

void Window::deliverUp(Point at, Button button) {
    Control* const hit = captured_ != nullptr ? captured_ : &controlAt(at);
    captured_ = nullptr;
    if (!hit->enabled()) return;
    // A handler may close this window, and the control with it: nothing of either is touched after one has run.
    const PointerEvent event = inControl(*hit, at, button, 1);
    const bool over = hit->areaInWindow().contains(at);
    const auto click = button == Button::left && over ? hit->onClick : nullptr;
    const auto up = hit->onUp;
    hit->pointerUp(event);
    if (up) up(event);
    if (click) click();
}

void Window::deliverWheel(Point at, int lines) {
    Control* hit = &controlAt(at);
    if (hit->enabled()) hit->wheel(lines);
}

void Window::deliverKeyDown(int code, bool shift, bool control, bool repeat) {
    Control* const target = focus_;
    if (!repeat) onKeyDown(code);
    if (!open_ || target == nullptr || target != focus_ || !target->enabled()) return;
    if (target->keyDown(code, shift, control)) return;
    if (code == key::tab && !control) focusNext(shift);
}

void Window::deliverKeyUp(int code) {
    onKeyUp(code);
}

void Window::deliverKeyPress(char c) {
    Control* const target = focus_;
    onKeyPress(c);
    if (open_ && target != nullptr && target == focus_ && target->enabled()) target->keyPress(c);
}

}  // namespace zentrox
