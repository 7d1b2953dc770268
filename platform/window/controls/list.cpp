#include "platform/window/controls/list.h"

#include <algorithm>

#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr int margin = 2;  // pixels left of an item's text

}  // namespace

List::List(Control* parent, const Rect& area) : Control(parent, area) {}

int List::rowHeight() const {
    return font().lineHeight();
}

int List::visibleRows() const {
    return std::max(1, (height() - 2 * look::edge) / rowHeight());
}

void List::setFont(const FontSpec& font) {
    font_ = font;
    changed();
}

void List::setItems(std::vector<Text> items) {
    items_ = std::move(items);
    selected_.reset();
    bar_.setArea(
        {width() - look::edge - ScrollBar::breadth, look::edge, ScrollBar::breadth, height() - 2 * look::edge});
    bar_.setRange(static_cast<int>(items_.size()), visibleRows());
    bar_.setPosition(0);
}

void List::select(std::size_t item) {
    if (item >= items_.size()) return;
    selected_ = item;
    const int row = static_cast<int>(item);
    if (row < bar_.position()) bar_.setPosition(row);
    if (row >= bar_.position() + visibleRows()) bar_.setPosition(row - visibleRows() + 1);
    changed();
}

void List::choose(std::size_t item) {
    select(item);
    if (const auto tell = onSelect) tell();
}

Text List::shownText() const {
    Text all;
    for (const Text& item : items_) all += (all.empty() ? "" : "\n") + item;
    return all;
}

bool List::shows(TextView part) const {
    return std::any_of(items_.begin(), items_.end(),
                       [part](const Text& item) { return item.find(part) != Text::npos; });
}

void List::focusChanged(bool has) {
    focused_ = has;
    changed();
}

std::optional<std::size_t> List::itemAt(Point at) const {
    const int row = bar_.position() + (at.y - look::edge) / rowHeight();
    if (at.y < look::edge || row >= static_cast<int>(items_.size())) return std::nullopt;
    return static_cast<std::size_t>(row);
}

void List::pointerDown(const PointerEvent& event) {
    if (event.button != Button::left) return;
    const Point at{static_cast<int>(event.x), static_cast<int>(event.y)};
    if (bar_.needed() && bar_.area().contains(at)) return bar_.press(at);
    choosing_ = true;
    const auto item = itemAt(at) ? itemAt(at) : selected_;
    doubled_ = event.clicks == 2 && item && item == selected_;
    if (item) choose(*item);
}

void List::pointerMove(const PointerEvent& event) {
    const Point at{static_cast<int>(event.x), static_cast<int>(event.y)};
    if (bar_.held()) bar_.move(at);
    if (!choosing_) return;
    const auto item = itemAt(at);
    if (item && item != selected_) {
        doubled_ = false;
        choose(*item);
    }
}

// The second release, not the second press, is the double click: a release that came after the window has closed
// would be handed to the window below.
void List::pointerUp(const PointerEvent& event) {
    if (event.button != Button::left) return;
    const bool doubled = choosing_ && doubled_;
    pointerLost();
    if (const auto tell = onDoubleClick; doubled && tell) tell();
}

void List::pointerLost() {
    choosing_ = doubled_ = false;
    bar_.release();
}

void List::wheel(int lines) {
    bar_.setPosition(bar_.position() - lines);
}

bool List::keyDown(int code, bool /*shift*/, bool control) {
    if (control || items_.empty()) return false;
    const int last = static_cast<int>(items_.size()) - 1;
    const int here = selected_ ? static_cast<int>(*selected_) : -1;
    int there = 0;
    switch (code) {
        case key::up: there = here - 1; break;
        case key::down: there = here + 1; break;
        case key::pageUp: there = here - visibleRows() + 1; break;
        case key::pageDown: there = here + visibleRows() - 1; break;
        case key::home: there = 0; break;
        case key::end: there = last; break;
        default: return false;
    }
    there = std::clamp(there, 0, last);
    if (there != here) choose(static_cast<std::size_t>(there));
    return true;
}

// A letter goes to the next item that begins with it.
bool List::keyPress(char c) {
    const std::size_t count = items_.size();
    const std::size_t start = selected_ ? *selected_ + 1 : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t item = (start + i) % count;
        if (items_[item].empty() || lower(items_[item].front()) != lower(c)) continue;
        choose(item);
        return true;
    }
    return false;
}

void List::paint(Bitmap& onto, Point at) {
    const Rect whole{at, area().size()};
    onto.fill(whole, look::ground);
    look::sunken(onto, whole);
    if (bar_.needed()) bar_.paint(onto, at);

    const int room = width() - 2 * look::edge - (bar_.needed() ? ScrollBar::breadth : 0);
    const look::Clip clip(onto, {at.x + look::edge, at.y + look::edge, room, height() - 2 * look::edge});
    if (clip.empty()) return;
    const auto first = static_cast<std::size_t>(bar_.position());
    const std::size_t end = std::min(items_.size(), first + static_cast<std::size_t>(visibleRows()));
    for (std::size_t i = first; i < end; ++i) {
        const Rect row{at.x + look::edge, at.y + look::edge + static_cast<int>(i - first) * rowHeight(), room,
                       rowHeight()};
        const bool chosen = i == selected_;
        if (chosen) onto.fill(row, look::selection);
        const Colour colour = !enabled() ? look::greyText : chosen ? look::selectedText : look::text;
        font().draw(onto, row.at() + Point{margin, 0}, items_[i], colour);
        if (focused_ && i == selected_.value_or(first)) look::focusDots(onto, row);
    }
}

}  // namespace zentrox
