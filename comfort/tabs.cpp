#include "comfort/tabs.h"

#include "platform/platform.h"
#include "platform/values/keys.h"
#include "platform/window/window.h"

namespace zentrox {

namespace {

constexpr int raise = 2;  // pixels by which the open one stands out

}  // namespace

Tabs::Tabs(Control* parent, const Rect& area, std::vector<Text> names, std::function<void(std::size_t)> onTurn)
    : Control(parent, area),
      names_(std::move(names)),
      onTurn_(std::move(onTurn)) {}

Text Tabs::shownText() const {
    Text all;
    for (const Text& one : names_) all += (all.empty() ? "" : "\n") + one;
    return all;
}

// The room that the names leave is shared by all.
Rect Tabs::tab(std::size_t index) const {
    const FontSpec wanted = window()->platform().boxFont();
    const Font& font = look::fontFor(*this, wanted);
    const auto count = static_cast<int>(names_.size());
    int all = 0;
    int before = 0;
    for (std::size_t i = 0; i < names_.size(); ++i) {
        all += font.width(names_[i]);
        if (i < index) before += font.width(names_[i]);
    }
    const auto share = [&](std::size_t tabs) { return (width() - all) * static_cast<int>(tabs) / count; };
    const int left = before + share(index);
    return {left, raise, before + font.width(names_[index]) + share(index + 1) - left, height() - raise};
}

void Tabs::open(std::size_t page) {
    if (page == page_) return;
    page_ = page;
    changed();
    onTurn_(page);
}

void Tabs::turn(int by) {
    const auto count = static_cast<int>(names_.size());
    open(static_cast<std::size_t>((static_cast<int>(page_) + by + count) % count));
}

void Tabs::focusChanged(bool has) {
    focused_ = has;
    changed();
}

void Tabs::pointerDown(const PointerEvent& event) {
    for (std::size_t i = 0; i < names_.size(); ++i)
        if (tab(i).contains({static_cast<int>(event.x), static_cast<int>(event.y)})) open(i);
}

bool Tabs::keyDown(int code, bool /*shift*/, bool control) {
    if (control || (code != key::left && code != key::right)) return false;
    turn(code == key::left ? -1 : 1);
    return true;
}

void Tabs::paint(Bitmap& onto, Point at) {
    const FontSpec wanted = window()->platform().boxFont();
    const Font& font = look::fontFor(*this, wanted);
    const look::Clip clip(onto, {at, area().size()});
    for (std::size_t i = 0; i < names_.size(); ++i) {
        Rect body{tab(i).at() + at, tab(i).size()};
        const bool isOpen = i == page_;
        if (isOpen) body = {body.x - (i == 0 ? 0 : raise), body.y - raise, body.w + raise, body.h + raise};
        onto.fill(body, look::face);
        // The open one has no lower edge: it goes over into its page.
        look::raised(onto, {body.at(), {body.w, body.h + (isOpen ? 2 : 0)}});
        const Point text{body.x + (body.w - font.width(names_[i])) / 2, body.y + (body.h - font.lineHeight()) / 2};
        font.draw(onto, text, names_[i], look::text);
        if (isOpen && focused_)
            look::focusDots(onto, {text - Point{3, 1}, {font.width(names_[i]) + 6, font.lineHeight() + 2}});
    }
}

}  // namespace zentrox
