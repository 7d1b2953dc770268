#include "comfort/settingcontrol.h"

#include <algorithm>
#include <cmath>

#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr int margin = 4;
constexpr int box = 13;
constexpr int switchText = margin + box + 6;
constexpr int titleWidth = 150;
constexpr int valueWidth = 190;
constexpr int thumb = 10;
constexpr int arrowWidth = 18;

// A triangle in the middle of `area`, its point to one side.
void sideArrow(Bitmap& onto, const Rect& area, bool left) {
    constexpr int columns = 4;
    const int middle = area.y + area.h / 2;
    const int begin = area.x + (area.w - columns) / 2;
    for (int i = 0; i < columns; ++i) {
        const int half = left ? i : columns - 1 - i;
        onto.fill({begin + i, middle - half, 1, 2 * half + 1}, look::text);
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

Rect SettingControl::valueArea() const {
    return {titleWidth, 0, valueWidth, height()};
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
    const auto length = static_cast<float>(valueWidth - thumb);
    const float part = std::clamp((x - titleWidth - thumb / 2.0F) / length, 0.0F, 1.0F);
    const auto steps = std::lround(part * static_cast<float>((row_.most - row_.least) / row_.step));
    setNumber(row_.least + static_cast<int>(steps) * row_.step);
}

void SettingControl::pointerDown(const PointerEvent& event) {
    if (event.button != Button::left) return;
    if (isSwitch()) return step(1);
    if (event.x < titleWidth || event.x >= titleWidth + valueWidth) return;
    if (isChoice()) return turn(event.x < titleWidth + arrowWidth ? -1 : 1);
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
    const Font& font = look::fontFor(*this);
    if (isSwitch())
        paintSwitch(onto, at, font);
    else if (isChoice())
        paintChoice(onto, at, font);
    else
        paintSlider(onto, at, font);
    const int x = isSwitch() ? switchText - margin : 0;
    const int textTop = (height() - font.lineHeight()) / 2;
    if (!isSwitch()) font.draw(onto, at + Point{margin, textTop}, row_.title, look::text);
    if (focused_) {
        const int width = isSwitch() ? font.width(row_.title) + 2 * margin : titleWidth - margin;
        look::focusDots(onto, {at + Point{x, textTop - 2}, {width, font.lineHeight() + 4}});
    }
}

void SettingControl::paintSwitch(Bitmap& onto, Point at, const Font& font) const {
    const Rect square{at.x + margin, at.y + (height() - box) / 2, box, box};
    onto.fill(square, look::ground);
    look::sunken(onto, square);
    for (int i = 0; flag() && i < 7; ++i) {
        const int drop = i < 3 ? i : 4 - i;
        onto.fill({square.x + 3 + i, square.y + 5 + drop, 1, 3}, look::text);
    }
    font.draw(onto, at + Point{switchText, (height() - font.lineHeight()) / 2}, row_.title, look::text);
}

void SettingControl::paintSlider(Bitmap& onto, Point at, const Font& font) const {
    const Rect area{valueArea().at() + at, valueArea().size()};
    const int middle = area.y + area.h / 2;
    look::sunken(onto, {area.x, middle - 2, area.w, 4});
    const int way = (number() - row_.least) * (area.w - thumb) / std::max(1, row_.most - row_.least);
    const Rect grip{area.x + way, middle - 8, thumb, 17};
    onto.fill(grip, look::face);
    look::raised(onto, grip);
    font.draw(onto, {area.right() + 2 * margin, at.y + (height() - font.lineHeight()) / 2}, valueText(),
              look::text);
}

void SettingControl::paintChoice(Bitmap& onto, Point at, const Font& font) const {
    const Rect area = look::shrunk({valueArea().at() + at, valueArea().size()}, 1);
    onto.fill(area, look::ground);
    look::sunken(onto, area);
    for (const bool left : {true, false}) {
        const Rect button{left ? area.x + 2 : area.right() - 2 - (arrowWidth - 2), area.y + 2, arrowWidth - 2,
                          area.h - 4};
        onto.fill(button, look::face);
        look::raised(onto, button);
        sideArrow(onto, button, left);
    }
    const Text value = valueText();
    const look::Clip clip(onto, {area.x + arrowWidth, area.y, area.w - 2 * arrowWidth, area.h});
    font.draw(onto, {area.x + (area.w - font.width(value)) / 2, at.y + (height() - font.lineHeight()) / 2}, value,
              look::text);
}

}  // namespace zentrox
