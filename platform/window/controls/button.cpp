#include "platform/window/controls/button.h"

#include "platform/values/keys.h"

namespace zentrox {

PushButton::PushButton(Control* parent, const Rect& area, TextView caption)
    : Control(parent, area),
      caption_(caption) {}

void PushButton::setCaption(TextView caption) {
    caption_ = caption;
    changed();
}

void PushButton::setFont(const FontSpec& font) {
    font_ = font;
    changed();
}

void PushButton::setDefault(bool on) {
    default_ = on;
    changed();
}

void PushButton::focusChanged(bool has) {
    focused_ = has;
    changed();
}

bool PushButton::over(const PointerEvent& event) const {
    return event.x >= 0 && event.y >= 0 && event.x < static_cast<float>(width()) &&
           event.y < static_cast<float>(height());
}

void PushButton::setPressed(bool pressed) {
    if (pressed == pressed_) return;
    pressed_ = pressed;
    changed();
}

void PushButton::pointerDown(const PointerEvent& event) {
    if (event.button != Button::left) return;
    held_ = true;
    setPressed(true);
}

void PushButton::pointerMove(const PointerEvent& event) {
    if (held_) setPressed(over(event));
}

void PushButton::pointerUp(const PointerEvent& event) {
    if (event.button == Button::left) pointerLost();
}

void PushButton::pointerLost() {
    held_ = false;
    setPressed(false);
}

bool PushButton::keyDown(int code, bool /*shift*/, bool control) {
    if (control || (code != key::enter && code != key::space)) return false;
    if (const auto click = onClick) click();
    return true;
}

void PushButton::paint(Bitmap& onto, Point at) {
    Rect body{at, area().size()};
    if (focused_ || default_) {
        onto.outline(body, black);
        body = look::shrunk(body, 1);
    }
    onto.fill(body, look::face);
    if (pressed_)
        onto.outline(body, look::shadow);
    else
        look::raised(onto, body);

    const Font& font = look::fontFor(*this, font_);
    const int sunk = pressed_ ? 1 : 0;
    const Point to{at.x + (width() - font.width(caption_)) / 2 + sunk,
                   at.y + (height() - font.lineHeight()) / 2 + sunk};
    if (!enabled()) font.draw(onto, to + Point{1, 1}, caption_, look::highlight);
    font.draw(onto, to, caption_, enabled() ? look::text : look::greyText);
    if (focused_) {
        const Rect dots = look::shrunk({at, area().size()}, 4);
        look::focusDots(onto, {dots.at() + Point{sunk, sunk}, dots.size()});
    }
}

}  // namespace zentrox
