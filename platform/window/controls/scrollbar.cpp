#include "platform/window/controls/scrollbar.h"

#include <algorithm>

#include "platform/platform.h"
#include "platform/window/window.h"

namespace zentrox {

namespace {

constexpr Milliseconds firstRepeat = 400;
constexpr Milliseconds nextRepeats = 50;
constexpr int shortestThumb = 8;  // pixels

}  // namespace

void ScrollBar::setRange(int lines, int page) {
    lines_ = std::max(lines, 0);
    page_ = std::max(page, 1);
    setPosition(position_);
}

void ScrollBar::setPosition(int line) {
    position_ = std::clamp(line, 0, last());
    owner_.changed();
}

int ScrollBar::arrowHeight() const {
    return std::min(breadth, area_.h / 2);
}

Rect ScrollBar::track() const {
    return {area_.x, area_.y + arrowHeight(), area_.w, area_.h - 2 * arrowHeight()};
}

Rect ScrollBar::thumb() const {
    const Rect way = track();
    if (!needed() || way.h < 2 * shortestThumb) return {way.x, way.y, way.w, 0};
    const int height = std::max(shortestThumb, static_cast<int>(static_cast<std::int64_t>(way.h) * page_ / lines_));
    const int top = static_cast<int>(static_cast<std::int64_t>(way.h - height) * position_ / last());
    return {way.x, way.y + top, way.w, height};
}

ScrollBar::Part ScrollBar::partAt(Point at) const {
    if (!needed() || !area_.contains(at)) return Part::none;
    if (at.y < track().y) return Part::up;
    if (at.y >= track().bottom()) return Part::down;
    if (at.y < thumb().y) return Part::above;
    return at.y < thumb().bottom() ? Part::thumb : Part::below;
}

void ScrollBar::press(Point at) {
    pointer_ = at;
    part_ = partAt(at);
    grip_ = at.y - thumb().y;
    if (part_ == Part::none || part_ == Part::thumb) return;
    step();
    repeat_.emplace(owner_.window()->platform().queue, firstRepeat, true, [this] { repeat(); });
}

void ScrollBar::move(Point at) {
    pointer_ = at;
    if (part_ != Part::thumb) return;
    const int way = track().h - thumb().h;
    const int top = at.y - grip_ - track().y;
    if (way > 0) setPosition(static_cast<int>((static_cast<std::int64_t>(top) * last() * 2 + way) / (2 * way)));
}

void ScrollBar::release() {
    part_ = Part::none;
    repeat_.reset();
    owner_.changed();
}

void ScrollBar::step() {
    switch (part_) {
        case Part::up: return setPosition(position_ - 1);
        case Part::down: return setPosition(position_ + 1);
        case Part::above: return setPosition(position_ - page_);
        case Part::below: return setPosition(position_ + page_);
        case Part::thumb:
        case Part::none: return;
    }
}

// The track stops to scroll when the thumb has come under the pointer.
void ScrollBar::repeat() {
    repeat_->setPeriod(nextRepeats);
    if (partAt(pointer_) == part_) step();
}

void ScrollBar::paint(Bitmap& onto, Point at) const {
    const auto placed = [at](Rect part) { return Rect{part.at() + at, part.size()}; };
    const Rect way = placed(track());
    for (int y = way.y; y < way.bottom(); ++y)
        for (int x = way.x; x < way.right(); ++x)
            onto.setPixel({x, y}, ((x + y) & 1) != 0 ? look::highlight : look::face);

    for (const Part part : {Part::up, Part::down}) {
        const bool up = part == Part::up;
        const Rect box = placed({area_.x, up ? area_.y : track().bottom(), area_.w, arrowHeight()});
        onto.fill(box, look::face);
        if (part_ == part)
            onto.outline(box, look::shadow);
        else
            look::raised(onto, box);
        if (!needed()) look::arrow(onto, {box.x + 1, box.y + 1, box.w, box.h}, up, look::highlight);
        look::arrow(onto, box, up, needed() ? look::text : look::shadow);
    }
    const Rect grip = placed(thumb());
    if (grip.empty()) return;
    onto.fill(grip, look::face);
    look::raised(onto, grip);
}

}  // namespace zentrox
