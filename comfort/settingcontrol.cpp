#include "comfort/settingcontrol.h"

#include <algorithm>
#include <cmath>

#include "comfort/letters.h"
#include "platform/values/keys.h"
#include "platform/window/window.h"

namespace zentrox {

namespace {

constexpr int margin = 4;

// What grows with the letters, in pixels.
int box(const Platform& platform) {
    return grown(platform, 13, 26);
}
int switchText(const Platform& platform) {
    return margin + box(platform) + 6;
}
int titleWidth(const Platform& platform) {
    return grown(platform, 150, 220);
}
int thumb(const Platform& platform) {
    return grown(platform, 10, 16);
}
int arrowWidth(const Platform& platform) {
    return grown(platform, 18, 26);
}

// A triangle in the middle of `area`, its point to one side.
void sideArrow(Bitmap& onto, const Rect& area, bool left) {
    const int columns = area.w / 4;
    const int middle = area.y + area.h / 2;
    const int begin = area.x + (area.w - columns) / 2;
    for (int i = 0; i < columns; ++i) {
        const int half = left ? i : columns - 1 - i;
        onto.fill({begin + i, middle - half, 1, 2 * half + 1}, look::text);
    }
}

// In the box of a switch.
void tick(Bitmap& onto, const Platform& platform, const Rect& box) {
    const int length = grown(platform, 7, 14);
    const int turn = grown(platform, 3, 6);
    const Point at{box.x + grown(platform, 3, 6), box.y + grown(platform, 5, 10)};
    for (int x = 0; x < length; ++x) {
        const int drop = x < turn ? x : 2 * turn - 2 - x;
        onto.fill({at.x + x, at.y + drop, 1, grown(platform, 3, 6)}, look::text);
    }
}

}  // namespace

SettingControl::SettingControl(Control* parent, const Rect& area, const SettingsRow& row, Settings& settings,
                               std::function<void()> onChange)
    : Control(parent, area),
      row_(row),
      settings_(settings),
      onChange_(std::move(onChange)) {}

Text SettingControl::valueText() const {
    if (isSwitch()) return flag() ? "ja" : "nein";
    for (const Choice& choice : row_.choices)
        if (choice.value == number()) return Text(choice.title);
    return std::to_string(number()) + Text(row_.unit);
}

Text SettingControl::shownText() const {
    return Text(row_.title) + ": " + valueText();
}

const Platform& SettingControl::platform() const {
    return window()->platform();
}

const Font& SettingControl::font() const {
    return look::fontFor(*this, platform().boxFont());
}

// A slider leaves room for its number.
Rect SettingControl::valueArea() const {
    const int left = titleWidth(platform());
    const int room = width() - left - (isChoice() ? 0 : 3 * margin + font().width("100 %"));
    return {left, 0, std::min(grown(platform(), 190, 340), room), height()};
}

// --- changing it

void SettingControl::setNumber(int value) {
    if (value == number()) return;
    number() = value;
    changed();
    onChange_();
}

void SettingControl::turn(int by) {
    const auto here = std::find_if(row_.choices.begin(), row_.choices.end(),
                                   [this](const Choice& choice) { return choice.value == number(); });
    const auto count = static_cast<std::ptrdiff_t>(row_.choices.size());
    const auto next = ((here - row_.choices.begin() + by) % count + count) % count;
    setNumber(row_.choices[static_cast<std::size_t>(next)].value);
}

void SettingControl::step(int by) {
    if (isChoice()) return turn(by);
    if (!isSwitch()) return setNumber(std::clamp(number() + by * row_.step, row_.least, row_.most));
    flag() = !flag();
    changed();
    onChange_();
}

void SettingControl::slideTo(float x) {
    const auto grip = static_cast<float>(thumb(platform()));
    const auto left = static_cast<float>(valueArea().x);
    const auto length = static_cast<float>(valueArea().w) - grip;
    const float part = std::clamp((x - left - grip / 2) / length, 0.0F, 1.0F);
    const auto steps = std::lround(part * static_cast<float>((row_.most - row_.least) / row_.step));
    setNumber(row_.least + static_cast<int>(steps) * row_.step);
}

void SettingControl::pointerDown(const PointerEvent& event) {
    if (event.button != Button::left) return;
    if (isSwitch()) return step(1);
    const Rect value = valueArea();
    const int x = static_cast<int>(event.x);
    if (x < value.x || x >= value.right()) return;
    if (isChoice()) return turn(x < value.x + arrowWidth(platform()) ? -1 : 1);
    sliding_ = true;
    slideTo(event.x);
}

void SettingControl::pointerMove(const PointerEvent& event) {
    if (sliding_) slideTo(event.x);
}

void SettingControl::pointerUp(const PointerEvent& /*event*/) {
    sliding_ = false;
}

bool SettingControl::keyDown(int code, bool /*shift*/, bool control) {
    const bool press = code == key::space || code == key::enter;
    const bool side = code == key::left || code == key::right;
    if (control || (!press && !side)) return false;
    if (!isSwitch())
        step(code == key::left ? -1 : 1);
    else if (press || flag() != (code == key::right))
        step(1);
    return true;
}

void SettingControl::focusChanged(bool has) {
    focused_ = has;
    changed();
}

// --- its looks

void SettingControl::paint(Bitmap& onto, Point at) {
    if (isSwitch())
        paintSwitch(onto, at);
    else if (isChoice())
        paintChoice(onto, at);
    else
        paintSlider(onto, at);
    const int x = isSwitch() ? switchText(platform()) - margin : 0;
    const int textTop = (height() - font().lineHeight()) / 2;
    if (!isSwitch()) font().draw(onto, at + Point{margin, textTop}, row_.title, look::text);
    if (focused_) {
        const int width = isSwitch() ? font().width(row_.title) + 2 * margin : valueArea().x - margin;
        look::focusDots(onto, {at + Point{x, textTop - 2}, {width, font().lineHeight() + 4}});
    }
}

void SettingControl::paintSwitch(Bitmap& onto, Point at) const {
    const int side = box(platform());
    const Rect square{at.x + margin, at.y + (height() - side) / 2, side, side};
    onto.fill(square, look::ground);
    look::sunken(onto, square);
    if (flag()) tick(onto, platform(), square);
    font().draw(onto, at + Point{switchText(platform()), (height() - font().lineHeight()) / 2}, row_.title,
                look::text);
}

void SettingControl::paintSlider(Bitmap& onto, Point at) const {
    const Rect area{valueArea().at() + at, valueArea().size()};
    const int middle = area.y + area.h / 2;
    look::sunken(onto, {area.x, middle - 2, area.w, 4});
    const int broad = thumb(platform());
    const int way = (number() - row_.least) * (area.w - broad) / std::max(1, row_.most - row_.least);
    const Rect grip{area.x + way, middle - 8, broad, 17};
    onto.fill(grip, look::face);
    look::raised(onto, grip);
    font().draw(onto, {area.right() + 2 * margin, at.y + (height() - font().lineHeight()) / 2}, valueText(),
                look::text);
}

void SettingControl::paintChoice(Bitmap& onto, Point at) const {
    const Rect area = look::shrunk({valueArea().at() + at, valueArea().size()}, 1);
    onto.fill(area, look::ground);
    look::sunken(onto, area);
    const int arrow = arrowWidth(platform());
    for (const bool left : {true, false}) {
        const Rect button{left ? area.x + 2 : area.right() - 2 - (arrow - 2), area.y + 2, arrow - 2, area.h - 4};
        onto.fill(button, look::face);
        look::raised(onto, button);
        sideArrow(onto, button, left);
    }
    const Text value = valueText();
    const look::Clip clip(onto, {area.x + arrow, area.y, area.w - 2 * arrow, area.h});
    font().draw(onto, {area.x + (area.w - font().width(value)) / 2, at.y + (height() - font().lineHeight()) / 2},
                value, look::text);
}

}  // namespace zentrox
