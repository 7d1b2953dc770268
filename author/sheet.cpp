#include "author/sheet.h"

#include <algorithm>
#include <utility>

#include "platform/window/controls/look.h"

namespace zentrox::author {

namespace {

constexpr float points = 9;
constexpr Size buttonInset{8, 4};
constexpr int gap = 4;  // between buttons
constexpr int rowInset = 5;
constexpr int rowExtra = 4;  // pixels between two rows
constexpr int columnGap = 10;
constexpr int boxSize = 9;
constexpr int barWidth = 10;
constexpr int shortestThumb = 16;
constexpr Colour stripe{240, 240, 245};
constexpr Colour currentGround{255, 236, 170};

Text fitted(const Text& text, int width, const Font& font) {
    if (font.width(text) <= width) return text;
    const int room = width - font.width("...");
    std::size_t fits = 0;
    int x = 0;
    while (fits < text.size() && (x += font.width(text.substr(fits, 1))) <= room) ++fits;
    return text.substr(0, fits) + "...";
}

}  // namespace

void Sheet::begin(Size size) {
    if (picture_.size() != size) picture_ = Bitmap(size);
    picture_.setClip(picture_.bounds());
    picture_.fill(look::face);
    spots_.clear();
}

const Font& Sheet::font(bool bold) const {
    return fonts_.get({.points = points, .bold = bold});
}

int Sheet::lineHeight() const {
    return font().lineHeight() + rowExtra;
}

int Sheet::buttonHeight() const {
    return font().lineHeight() + 2 * buttonInset.h;
}

int Sheet::text(Point at, int width, const Text& text, Colour colour, bool bold) {
    const Font& with = font(bold);
    const Text cut = fitted(text, width, with);
    with.draw(picture_, at, cut, colour);
    return at.x + with.width(cut);
}

int Sheet::buttonWidth(const Text& label) const {
    return font().width(label) + 2 * buttonInset.w;
}

int Sheet::button(Point at, const Text& label, bool down, Action click) {
    const Rect area{at, {buttonWidth(label), buttonHeight()}};
    picture_.fill(area, down ? look::light : look::face);
    down ? look::sunken(picture_, area) : look::raised(picture_, area);
    font().draw(picture_, at + Point{buttonInset.w, buttonInset.h}, label, look::text);
    clickable(area, std::move(click));
    return area.right() + gap;
}

void Sheet::clickable(const Rect& area, Action click) {
    spots_.push_back({area, [click = std::move(click)](Point /*at*/) {
                          if (click) click();
                      }});
}

void Sheet::click(Point at) {
    const auto spot =
        std::find_if(spots_.begin(), spots_.end(), [&](const Spot& one) { return one.area.contains(at); });
    if (spot == spots_.end()) return;
    const auto click = spot->click;  // it may paint anew
    click(at);
}

// --- lists

void Sheet::list(const Rect& frame, const std::vector<Row>& rows, int& scroll, bool newestLast) {
    picture_.fill(frame, look::ground);
    look::sunken(picture_, frame);
    const Rect inner = look::shrunk(frame, look::edge);
    const look::Clip clip(picture_, inner);
    if (clip.empty()) return;
    const int count = static_cast<int>(rows.size());
    const int fit = std::max(1, inner.h / lineHeight());
    const int most = std::max(0, count - fit);
    scroll = std::clamp(scroll, 0, most);
    const int first = newestLast ? most - scroll : scroll;
    int placeWidth = 0;
    for (const Row& one : rows) placeWidth = std::max(placeWidth, font().width(one.place));
    placeWidth = std::min(placeWidth, inner.w * 2 / 5);
    Rect area{inner.x, inner.y, inner.w - (most > 0 ? barWidth : 0), lineHeight()};
    for (int i = first; i < count && area.y < inner.bottom(); ++i, area.y += area.h)
        row(area, rows[static_cast<std::size_t>(i)], placeWidth, i % 2 == 1);
    if (most == 0) return;
    scrollBar({inner.right() - barWidth, inner.y, barWidth, inner.h}, count, fit, first,
              [&scroll, most, newestLast](int to) { scroll = newestLast ? most - to : to; });
}

void Sheet::row(const Rect& area, const Row& row, int placeWidth, bool striped) {
    if (striped) picture_.fill(area, stripe);
    if (row.current) picture_.fill(area, currentGround);
    Point at = area.at() + Point{rowInset, rowExtra / 2};
    if (placeWidth > 0) {
        text(at, placeWidth, row.place, ink::faint);
        at.x += placeWidth + columnGap;
    }
    if (row.box) {
        const Rect box{at.x, area.y + (area.h - boxSize) / 2, boxSize, boxSize};
        picture_.fill(box, look::ground);
        picture_.outline(box, ink::faint);
        if (*row.box) picture_.fill(look::shrunk(box, 2), ink::accent);
        at.x = box.right() + rowInset;
    }
    text(at, area.right() - rowInset - at.x, row.text, row.colour, row.box.value_or(false));
    clickable(area, row.click);
}

// A click goes to where it is in the whole.
void Sheet::scrollBar(const Rect& area, int count, int fit, int first, std::function<void(int)> goTo) {
    const int most = count - fit;
    const int thumb = std::min(area.h, std::max(shortestThumb, area.h * fit / count));
    picture_.fill(area, look::light);
    const Rect knob{area.x, area.y + (area.h - thumb) * first / most, area.w, thumb};
    picture_.fill(knob, look::face);
    look::raised(picture_, knob);
    spots_.push_back({area, [=, goTo = std::move(goTo)](Point at) {
                          const int way = std::max(1, area.h - thumb);
                          goTo(std::clamp((at.y - area.y - thumb / 2) * most / way, 0, most));
                      }});
}

}  // namespace zentrox::author
