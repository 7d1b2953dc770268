#include "platform/picture/bitmap.h"

#include <cmath>
#include <cstdlib>

namespace zentrox {

namespace {

constexpr std::uint32_t allBits = 0xFFFFFF;

// Coordinates of lines beyond this are drawn as if they lay here, so that their products fit 64 bits.
constexpr int farAway = 1 << 29;

Size atLeastNothing(Size size) {
    return {std::max(size.w, 0), std::max(size.h, 0)};
}

// The part of a line along its long axis that is seen: pixels from `first` to `last`, counted from its start.
struct Run {
    std::int64_t first;
    std::int64_t last;
};

Run seen(std::int64_t start, int step, std::int64_t length, int low, int high) {
    const std::int64_t toLow = step > 0 ? low - start : start - low;
    const std::int64_t toHigh = step > 0 ? high - start : start - high;
    return {std::max<std::int64_t>(std::min(toLow, toHigh), 0), std::min(std::max(toLow, toHigh), length)};
}

int along(int low, int high, int at) {
    return std::clamp(at, low, high);
}

}  // namespace

Bitmap::Bitmap(Size size, Colour fill)
    : size_(atLeastNothing(size)),
      clip_({0, 0}, size_),
      pixels_(static_cast<std::size_t>(size_.w) * size_.h, fill.rgb) {}

std::int32_t Bitmap::pixel(Point p) const {
    return bounds().contains(p) ? static_cast<std::int32_t>(row(p.y)[p.x]) : -1;
}

void Bitmap::put(Point p, Colour colour) {
    if (clip_.contains(p)) row(p.y)[p.x] = colour.rgb;
}

void Bitmap::setPixel(Point p, Colour colour) {
    put(p, colour);
    if (Bitmap* const ground = groundUnder()) ground->put(p, colour);
}

void Bitmap::fill(Colour colour) {
    fill(bounds(), colour);
}

void Bitmap::fill(const Rect& area, Colour colour) {
    const Rect part = intersection(area, clip_);
    if (part.empty()) return;
    for (int y = part.y; y < part.bottom(); ++y) std::fill_n(row(y) + part.x, part.w, colour.rgb);
    if (Bitmap* const ground = groundUnder(part)) ground->fill(part, colour);
}

void Bitmap::invert(const Rect& area) {
    const Rect part = intersection(area, clip_);
    if (part.empty()) return;
    for (int y = part.y; y < part.bottom(); ++y) {
        std::uint32_t* const pixels = row(y) + part.x;
        for (int x = 0; x < part.w; ++x) pixels[x] ^= allBits;
    }
    if (Bitmap* const ground = groundUnder()) ground->invert(area);
}

void Bitmap::outline(const Rect& area, Colour colour) {
    if (area.empty()) return;
    fill({area.x, area.y, area.w, 1}, colour);
    fill({area.x, area.bottom() - 1, area.w, 1}, colour);
    fill({area.x, area.y, 1, area.h}, colour);
    fill({area.right() - 1, area.y, 1, area.h}, colour);
}

// Each pixel along the long axis takes the nearest one across it; only the part within the clip is walked.
void Bitmap::line(Point from, Point to, Colour colour) {
    if (clip_.empty()) return;
    if (Bitmap* const ground = groundUnder()) ground->line(from, to, colour);
    const Point a{along(-farAway, farAway, from.x), along(-farAway, farAway, from.y)};
    const Point b{along(-farAway, farAway, to.x), along(-farAway, farAway, to.y)};
    const bool flat = std::abs(b.x - a.x) >= std::abs(b.y - a.y);
    const std::int64_t length = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
    const std::int64_t rise = std::min(std::abs(b.x - a.x), std::abs(b.y - a.y));
    const int stepX = b.x < a.x ? -1 : 1;
    const int stepY = b.y < a.y ? -1 : 1;
    const Run run = flat ? seen(a.x, stepX, length, clip_.x, clip_.right() - 1)
                         : seen(a.y, stepY, length, clip_.y, clip_.bottom() - 1);
    if (run.first > run.last) return;

    const std::int64_t whole = std::max<std::int64_t>(2 * length, 1);
    std::int64_t across = (2 * run.first * rise + length) / whole;
    std::int64_t rest = (2 * run.first * rise + length) % whole;
    for (std::int64_t i = run.first; i <= run.last; ++i) {
        const std::int64_t dx = flat ? i : across;
        const std::int64_t dy = flat ? across : i;
        put({held(a.x + stepX * dx), held(a.y + stepY * dy)}, colour);
        rest += 2 * rise;
        if (rest >= whole) {
            rest -= whole;
            ++across;
        }
    }
}

// Goes over the columns and rows of the clip and not round the circle, so that a huge one costs no more than a
// small.
void Bitmap::circle(Point centre, int radius, Colour colour) {
    if (radius < 0) return;
    if (Bitmap* const ground = groundUnder()) ground->circle(centre, radius, colour);
    // The distance of the edge from the centre at `offset` from it; nothing where the other axis is nearer to it.
    const auto edge = [r = static_cast<double>(radius)](std::int64_t offset) {
        const double d = std::abs(static_cast<double>(offset));
        if (d > r) return std::int64_t{-1};
        const double across = std::floor(std::sqrt(r * r - d * d) + 0.5);
        return d <= across ? static_cast<std::int64_t>(across) : std::int64_t{-1};
    };
    for (int x = clip_.x; x < clip_.right(); ++x) {
        const std::int64_t dy = edge(std::int64_t{x} - centre.x);
        if (dy < 0) continue;
        put({x, held(centre.y - dy)}, colour);
        put({x, held(centre.y + dy)}, colour);
    }
    for (int y = clip_.y; y < clip_.bottom(); ++y) {
        const std::int64_t dx = edge(std::int64_t{y} - centre.y);
        if (dx < 0) continue;
        put({held(centre.x - dx), y}, colour);
        put({held(centre.x + dx), y}, colour);
    }
}

}  // namespace zentrox
