// Points, sizes, rectangles and colours. Units are pixels, y downward.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace zentrox {

// The nearest whole number that an int can hold: sums of wild coordinates stop at its ends instead of wrapping.
constexpr int held(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

struct Point {
    int x = 0;
    int y = 0;
    friend bool operator==(const Point&, const Point&) = default;
    friend Point operator+(Point a, Point b) {
        return {held(std::int64_t{a.x} + b.x), held(std::int64_t{a.y} + b.y)};
    }
    friend Point operator-(Point a, Point b) {
        return {held(std::int64_t{a.x} - b.x), held(std::int64_t{a.y} - b.y)};
    }
};

struct Size {
    int w = 0;
    int h = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

// Left and top edge belong to it, `right()` and `bottom()` do not. Empty where a side is 0 or negative.
struct Rect {
    int x = 0;
    int y = 0;
    int w = 0;
    int h = 0;

    constexpr Rect() = default;
    constexpr Rect(int left, int top, int width, int height) : x(left), y(top), w(width), h(height) {}
    constexpr Rect(Point at, Size size) : x(at.x), y(at.y), w(size.w), h(size.h) {}

    int right() const { return held(std::int64_t{x} + w); }
    int bottom() const { return held(std::int64_t{y} + h); }
    Point at() const { return {x, y}; }
    Size size() const { return {w, h}; }
    bool empty() const { return w <= 0 || h <= 0; }
    bool contains(Point p) const { return p.x >= x && p.x < right() && p.y >= y && p.y < bottom(); }
    friend bool operator==(const Rect&, const Rect&) = default;
};

inline Rect intersection(const Rect& a, const Rect& b) {
    const int left = std::max(a.x, b.x);
    const int top = std::max(a.y, b.y);
    return {left, top, held(std::int64_t{std::min(a.right(), b.right())} - left),
            held(std::int64_t{std::min(a.bottom(), b.bottom())} - top)};
}

// The smallest rectangle that holds both; an empty one counts for nothing.
inline Rect united(const Rect& a, const Rect& b) {
    if (a.empty()) return b;
    if (b.empty()) return a;
    const int left = std::min(a.x, b.x);
    const int top = std::min(a.y, b.y);
    return {left, top, held(std::int64_t{std::max(a.right(), b.right())} - left),
            held(std::int64_t{std::max(a.bottom(), b.bottom())} - top)};
}

// A pixel's value, 0x00RRGGBB.
struct Colour {
    std::uint32_t rgb = 0;

    constexpr Colour() = default;
    constexpr explicit Colour(std::uint32_t value) : rgb(value & 0xFFFFFFU) {}
    // Each part from 0 to 255.
    constexpr Colour(int red, int green, int blue)
        : rgb(static_cast<std::uint32_t>(red) << 16U | static_cast<std::uint32_t>(green) << 8U |
              static_cast<std::uint32_t>(blue)) {}
    friend bool operator==(const Colour&, const Colour&) = default;
};

constexpr Colour black{0, 0, 0};
constexpr Colour white{255, 255, 255};

}  // namespace zentrox
