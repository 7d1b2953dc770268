#include "platform/window/controls/textcontrol.h"

#include <algorithm>

#include "platform/platform.h"
#include "platform/values/keys.h"
#include "platform/window/window.h"

namespace zentrox {

namespace {

Point pointOf(const PointerEvent& event) {
    return {static_cast<int>(event.x), static_cast<int>(event.y)};
}

}  // namespace

void TextControl::setFont(const FontSpec& font) {
    font_ = font;
    renewed();
}

void TextControl::setColours(Colour text, Colour ground) {
    colour_ = text;
    ground_ = ground;
    changed();
}

void TextControl::setReadOnly(bool on) {
    readOnly_ = on;
    changed();
}

void TextControl::focusChanged(bool has) {
    focused_ = has;
    changed();
}

void TextControl::edited() {
    renewed();
    if (const auto tell = onChange) tell();
}

void TextControl::put(TextView piece) {
    if (edit_.insert(piece)) edited();
}

void TextControl::pointerDown(const PointerEvent& event) {
    if (event.button != Button::left) return;
    if (event.clicks == 2)
        edit_.selectWord(gapAt(pointOf(event)));
    else
        edit_.moveTo(gapAt(pointOf(event)), event.shift);
    selecting_ = event.clicks != 2;
    moved();
}

void TextControl::pointerMove(const PointerEvent& event) {
    if (!selecting_) return;
    edit_.moveTo(gapAt(pointOf(event)), true);
    moved();
}

void TextControl::pointerUp(const PointerEvent& event) {
    if (event.button == Button::left) selecting_ = false;
}

bool TextControl::keyDown(int code, bool shift, bool control) {
    switch (edit_.key(window()->platform().backend, code, shift, control, readOnly_)) {
        case EditText::Answer::unused: return false;
        case EditText::Answer::moved: moved(); return true;
        case EditText::Answer::changed: edited(); return true;
    }
    return false;
}

bool TextControl::keyPress(char c) {
    if (readOnly_ || !isPrintable(c)) return false;
    put({&c, 1});
    return true;
}

void TextControl::paintGround(Bitmap& onto, Point at) const {
    const Rect whole{at, area().size()};
    onto.fill(whole, ground_);
    look::sunken(onto, whole);
}

void TextControl::paintText(Bitmap& onto, Point at, TextView piece) const {
    font().draw(onto, at, piece, enabled() ? colour_ : look::greyText);
}

void TextControl::paintSelection(Bitmap& onto, Point at, std::size_t begin, TextView piece) const {
    const std::size_t from = std::max(edit_.selectionBegin(), begin);
    const std::size_t to = std::min(edit_.selectionEnd(), begin + piece.size());
    if (from >= to) return;
    const int left = font().width(piece.substr(0, from - begin));
    const int right = font().width(piece.substr(0, to - begin));
    const Rect chosen{at.x + left, at.y, right - left, font().lineHeight()};
    const look::Clip part(onto, chosen);
    onto.fill(chosen, look::selection);
    font().draw(onto, at, piece, look::selectedText);
}

void TextControl::paintCaret(Bitmap& onto, Point at, std::size_t begin, TextView piece) const {
    if (!focused_ || readOnly_) return;
    const int x = at.x + font().width(piece.substr(0, caret() - begin));
    onto.fill({x, at.y, 1, font().lineHeight()}, colour_);
}

}  // namespace zentrox
