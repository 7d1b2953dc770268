#include "platform/window/window.h"

#include <algorithm>

#include "platform/platform.h"
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
    platform_.queue.windowOpened(*this);
    open_ = true;
    platform_.backend.opened(*this);
    onOpen();
}

void Window::close() {
    if (!open_) return;
    open_ = false;
    platform_.queue.windowClosed(*this);
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
    if (const Control* const hovered = routing_.hovered(); toolTipShown_ && hovered != nullptr) {
        picture_.setClip(picture_.bounds());
        toolTipArea_ = drawToolTip(picture_, platform_.fonts, routing_.hoverAt() + Point{0, toolTipDrop},
                                   hovered->toolTip(), picture_.bounds());
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
    const Control* const hovered = routing_.hovered();
    toolTipShown_ = show && hovered != nullptr && !hovered->toolTip().empty();
    changed(toolTipShown_ ? Rect{routing_.hoverAt(), {1, 1}} : toolTipArea_);
}

}  // namespace zentrox
