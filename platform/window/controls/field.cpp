#include "platform/window/controls/field.h"

#include <algorithm>

#include "platform/platform.h"
#include "platform/values/keys.h"
#include "platform/window/controls/textlayout.h"
#include "platform/window/window.h"

namespace zentrox {

namespace {

constexpr int margin = 1;  // pixels between the edge and the text

}  // namespace

Field::Field(Control* parent, const Rect& area, TextView text) : Control(parent, area) {
    edit_.set(text);
}

void Field::setText(TextView text) {
    edit_.set(text);
    renewed();
}

void Field::selectAll() {
    edit_.selectAll();
    renewed();
}

void Field::setFont(const FontSpec& font) {
    font_ = font;
    renewed();
}

void Field::setColours(Colour text, Colour ground) {
    colour_ = text;
    ground_ = ground;
    changed();
}

void Field::setReadOnly(bool on) {
    readOnly_ = on;
    changed();
}

void Field::focusChanged(bool has) {
    focused_ = has;
    changed();
}

Rect Field::inside() const {
    return {look::edge + margin, look::edge, width() - 2 * (look::edge + margin), height() - 2 * look::edge};
}

std::size_t Field::gapAt(float x) const {
    return nearestGap(look::fontFor(*this, font_), text(), static_cast<int>(x) - inside().x + scroll_);
}

// Scrolls so that the caret is seen, and so that no room is left at the end that the text could fill.
void Field::renewed() {
    const Font& font = look::fontFor(*this, font_);
    const int room = std::max(inside().w - 1, 1);
    const int caretX = font.width(TextView(text()).substr(0, edit_.caret()));
    if (caretX < scroll_) scroll_ = std::max(0, caretX - room / 4);
    if (caretX > scroll_ + room) scroll_ = caretX - room;
    scroll_ = std::min(scroll_, std::max(0, font.width(text()) - room));
    changed();
}

void Field::edited() {
    renewed();
    if (const auto tell = onChange) tell();
}

void Field::pointerDown(const PointerEvent& event) {
    if (event.button != Button::left) return;
    const bool shift = (window()->platform().backend.keys()[key::shift] & 128U) != 0;
    if (event.clicks == 2)
        edit_.selectWord(gapAt(event.x));
    else
        edit_.moveTo(gapAt(event.x), shift);
    selecting_ = event.clicks != 2;
    renewed();
}

void Field::pointerMove(const PointerEvent& event) {
    if (!selecting_) return;
    edit_.moveTo(gapAt(event.x), true);
    renewed();
}

void Field::pointerUp(const PointerEvent& event) {
    if (event.button == Button::left) selecting_ = false;
}

bool Field::keyDown(int code, bool shift, bool control) {
    if (code == key::enter && onEnter) {
        const auto enter = onEnter;
        enter();
        return true;
    }
    switch (edit_.key(window()->platform().backend, code, shift, control, readOnly_)) {
        case EditText::Answer::unused: return false;
        case EditText::Answer::moved: renewed(); return true;
        case EditText::Answer::changed: edited(); return true;
    }
    return false;
}

bool Field::keyPress(char c) {
    if (readOnly_ || !isPrintable(c)) return false;
    if (edit_.insert({&c, 1})) edited();
    return true;
}

void Field::paint(Bitmap& onto, Point at) {
    const Rect whole{at, area().size()};
    onto.fill(whole, ground_);
    look::sunken(onto, whole);

    const look::Clip clip(onto, {at + inside().at() - Point{margin, 0}, {inside().w + 2 * margin, inside().h}});
    if (clip.empty()) return;
    const Font& font = look::fontFor(*this, font_);
    const auto placeOf = [&](std::size_t gap) {
        return at.x + inside().x - scroll_ + font.width(TextView(text()).substr(0, gap));
    };
    const int y = at.y + (height() - font.lineHeight()) / 2;
    const Point origin{placeOf(0), y};
    font.draw(onto, origin, text(), enabled() ? colour_ : look::greyText);
    if (!focused_) return;
    const int left = placeOf(edit_.selectionBegin());
    const Rect chosen{left, y, placeOf(edit_.selectionEnd()) - left, font.lineHeight()};
    if (!chosen.empty()) {
        const look::Clip part(onto, chosen);
        onto.fill(chosen, look::selection);
        font.draw(onto, origin, text(), look::selectedText);
    }
    if (!readOnly_) onto.fill({placeOf(edit_.caret()), y, 1, font.lineHeight()}, colour_);
}

}  // namespace zentrox
