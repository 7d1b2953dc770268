#include "platform/window/controls/field.h"

#include <algorithm>

#include "platform/values/keys.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr int margin = 1;  // pixels between the edge and the text

}  // namespace

Field::Field(Control* parent, const Rect& area, TextView text) : TextControl(parent, area, false) {
    edit_.set(text);
}

void Field::setText(TextView text) {
    edit_.set(text);
    moved();
}

void Field::selectAll() {
    edit_.selectAll();
    moved();
}

Rect Field::inside() const {
    return {look::edge + margin, look::edge, width() - 2 * (look::edge + margin), height() - 2 * look::edge};
}

std::size_t Field::gapAt(Point at) const {
    return nearestGap(font(), text(), at.x - inside().x + scroll_);
}

// Scrolls so that the caret is seen, and so that no room is left at the end that the text could fill.
void Field::moved() {
    const int room = std::max(inside().w - 1, 1);
    const int caretX = font().width(TextView(text()).substr(0, caret()));
    if (caretX < scroll_) scroll_ = std::max(0, caretX - room / 4);
    if (caretX > scroll_ + room) scroll_ = caretX - room;
    scroll_ = std::min(scroll_, std::max(0, font().width(text()) - room));
    changed();
}

bool Field::keyDown(int code, bool shift, bool control) {
    if (code != key::enter || !onEnter) return TextControl::keyDown(code, shift, control);
    const auto enter = onEnter;
    enter();
    return true;
}

void Field::paint(Bitmap& onto, Point at) {
    paintGround(onto, at);
    const look::Clip clip(onto, {at + inside().at() - Point{margin, 0}, {inside().w + 2 * margin, inside().h}});
    if (clip.empty()) return;
    const Point origin{at.x + inside().x - scroll_, at.y + (height() - font().lineHeight()) / 2};
    paintText(onto, origin, text());
    if (focused()) paintSelection(onto, origin, 0, text());
    paintCaret(onto, origin, 0, text());
}

}  // namespace zentrox
