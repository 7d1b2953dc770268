#include "platform/window/surface.h"

#include <algorithm>
#include <cstdlib>

namespace zentrox {

namespace {

constexpr std::size_t printedKept = 256;

// A corner further out than this is taken to be here, far outside any surface, so that the sides fit a rectangle.
constexpr int farAway = (1 << 30) - 1;

// The rectangle of two corners in any order, edges included.
Rect spanning(Point a, Point b) {
    const auto [left, right] =
        std::minmax({std::clamp(a.x, -farAway, farAway), std::clamp(b.x, -farAway, farAway)});
    const auto [top, bottom] =
        std::minmax({std::clamp(a.y, -farAway, farAway), std::clamp(b.y, -farAway, farAway)});
    return {left, top, right - left + 1, bottom - top + 1};
}

// The area that a scaled copy covers, mirrored or not.
Rect covered(const Rect& to) {
    return {to.w < 0 ? to.right() : to.x, to.h < 0 ? to.bottom() : to.y, held(std::llabs(to.w)),
            held(std::llabs(to.h))};
}

}  // namespace

Surface::Surface(Fonts& fonts, Size size, Colour back) : Surface(fonts, nullptr, {{0, 0}, size}, back) {}

Surface::Surface(Fonts& fonts, Control* parent, const Rect& area, Colour back)
    : Control(parent, area),
      fonts_(fonts),
      back_(back),
      image_(area.size(), back) {}

// --- the stored image, the picture and the screen

Bitmap& Surface::target() {
    if (autoRedraw_) {
        keepPicture();
        return image_;
    }
    if (screen_.empty()) screen_ = image_;
    return screen_;
}

void Surface::setAutoRedraw(bool on) {
    autoRedraw_ = on;
}

void Surface::refresh() {
    if (screen_.empty()) return;
    screen_ = Bitmap();
    changed();
}

void Surface::drawn(const Rect& part) {
    if (autoRedraw_) refresh();
    const Rect seen = intersection(part, {{0, 0}, area().size()});
    if (!seen.empty()) changed(seen);
}

void Surface::layGround(Bitmap& onto) const {
    const Bitmap* const picture = untouched_ ? &image_ : picture_ ? &*picture_ : nullptr;
    const bool covers =
        picture != nullptr && picture->width() >= onto.width() && picture->height() >= onto.height();
    if (!covers) onto.fill(back_);
    if (picture != nullptr) onto.copy(*picture, {0, 0});
}

// Most pictures are never drawn on; a copy of one is made only when the first stroke comes.
void Surface::keepPicture() {
    if (!untouched_) return;
    picture_ = image_;
    untouched_ = false;
}

void Surface::clear() {
    if (!untouched_ || !autoRedraw_) layGround(target());
    printed_.clear();
    currentX = 0;
    currentY = 0;
    drawn({{0, 0}, area().size()});
}

void Surface::adopt(Bitmap picture) {
    picture.setClip(picture.bounds());
    untouched_ = picture.size() == area().size();
    if (untouched_) {
        image_ = std::move(picture);
        picture_.reset();
    } else {
        picture_ = std::move(picture);
        layGround(image_);
    }
    printed_.clear();
    screen_ = Bitmap();
    changed();
}

void Surface::setPicture(const Bitmap& picture) {
    adopt(picture);
}

void Surface::takePicture(Bitmap picture) {
    setArea({area().at(), picture.size()});
    adopt(std::move(picture));
}

void Surface::removePicture() {
    picture_.reset();
    untouched_ = false;
    layGround(image_);
    printed_.clear();
    screen_ = Bitmap();
    changed();
}

void Surface::resize(Size size) {
    keepPicture();
    setArea({area().at(), size});
    screen_ = Bitmap();
    Bitmap larger(size, back_);
    larger.copy(image_, {0, 0});
    image_ = std::move(larger);
    changed();
}

// --- drawing

void Surface::box(Point a, Point b, Colour colour) {
    const Rect area = spanning(a, b);
    target().fill(area, colour);
    drawn(area);
}

void Surface::outline(Point a, Point b, Colour colour) {
    const Rect area = spanning(a, b);
    target().outline(area, colour);
    drawn(area);
}

void Surface::invertBox(Point a, Point b) {
    const Rect area = spanning(a, b);
    target().invert(area);
    drawn(area);
}

void Surface::line(Point a, Point b, Colour colour) {
    target().line(a, b, colour);
    drawn(spanning(a, b));
}

void Surface::circle(Point centre, int radius, Colour colour) {
    target().circle(centre, radius, colour);
    drawn(spanning(centre - Point{radius, radius}, centre + Point{radius, radius}));
}

void Surface::copy(const Bitmap& source, const Rect& from, Point to, Op op) {
    target().copy(source, from, to, op);
    drawn({to, from.size()});
}

void Surface::stretch(const Bitmap& source, const Rect& from, const Rect& to, Op op) {
    target().stretch(source, from, to, op);
    drawn(covered(to));
}

void Surface::setPixel(Point p, Colour colour) {
    target().setPixel(p, colour);
    drawn({p, Size{1, 1}});
}

// --- text

void Surface::print(TextView text) {
    remember(text);
    for (const TextView line : linesOf(text)) {
        printLine(line);
        currentX = 0;
        currentY = held(std::int64_t{currentY} + fonts_.get(font).lineHeight());
    }
}

void Surface::printAt(Point at, TextView text, Colour colour) {
    remember(text);
    currentX = at.x;
    currentY = at.y;
    const Colour before = foreground;
    foreground = colour;
    printLine(text);
    foreground = before;
    currentX = held(std::int64_t{currentX} + fonts_.get(font).width(text));
}

void Surface::outlineAt(Point at, TextView text, Colour colour) {
    const Font& face = fonts_.get(font);
    face.drawOutline(target(), at, text, colour);
    const int margin = face.lineHeight();
    drawn({at - Point{margin, margin}, Size{held(std::int64_t{face.width(text)} + 2 * margin), 3 * margin}});
}

void Surface::printLine(TextView line) {
    const Font& face = fonts_.get(font);
    face.draw(target(), {currentX, currentY}, line, foreground);
    // Letters lean out of their cell by less than a line's height.
    const int margin = face.lineHeight();
    const int width = held(std::int64_t{face.width(line)} + 2 * margin);
    drawn({Point{currentX, currentY} - Point{margin, margin}, Size{width, 3 * margin}});
}

void Surface::remember(TextView text) {
    if (text.empty() || std::find(printed_.begin(), printed_.end(), text) != printed_.end()) return;
    if (printed_.size() == printedKept) printed_.erase(printed_.begin());
    printed_.emplace_back(text);
}

bool Surface::shows(TextView part) const {
    return std::any_of(printed_.begin(), printed_.end(),
                       [&](const Text& text) { return text.find(part) != Text::npos; });
}

void Surface::paint(Bitmap& onto, Point at) {
    onto.copy(screen(), at);
}

}  // namespace zentrox
