// Every drawing against a model that goes over all pixels one by one.
#include "platform/picture/bitmap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <random>

namespace zentrox {
namespace {

using Wide = std::int64_t;
using Pick = std::function<std::optional<std::uint32_t>(Wide x, Wide y, std::uint32_t before)>;

std::string where(const Bitmap& a, const Bitmap& b) {
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.row(y)[x] != b.row(y)[x]) return std::to_string(x) + ", " + std::to_string(y);
    return "nowhere";
}

class Chooser {
public:
    explicit Chooser(unsigned seed) : engine_(seed) {}
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
    bool oneIn(int n) { return between(1, n) == 1; }
    // A coordinate round a bitmap of side 40; now and then one from the far end of the numbers.
    int coordinate() {
        if (!oneIn(40)) return between(-25, 65);
        constexpr std::array wild{std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1 << 30,
                                  -(1 << 30)};
        return wild[static_cast<std::size_t>(between(0, 3))];
    }
    Rect area() { return {coordinate(), coordinate(), coordinate(), coordinate()}; }
    Colour colour() { return Colour(static_cast<std::uint32_t>(engine_())); }
    Bitmap noise(Size size) {
        Bitmap bitmap(size);
        for (int y = 0; y < size.h; ++y)
            for (int x = 0; x < size.w; ++x) bitmap.row(y)[x] = colour().rgb;
        return bitmap;
    }

private:
    std::mt19937 engine_;
};

// The bitmap after `pick` has been asked for each pixel of the clip.
Bitmap modelled(const Bitmap& before, const Pick& pick) {
    Bitmap after = before;
    for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x)
            if (after.clip().contains({x, y}))
                if (const auto value = pick(x, y, before.row(y)[x])) after.row(y)[x] = *value;
    return after;
}

std::uint32_t combined(Op op, std::uint32_t before, std::uint32_t source) {
    return op == Op::plain ? source : op == Op::bitAnd ? before & source : before | source;
}

bool within(const Rect& area, Wide x, Wide y) {
    return x >= area.x && x < Wide{area.x} + area.w && y >= area.y && y < Wide{area.y} + area.h;
}

Pick copying(const Bitmap& source, const Rect& from, Point to, Op op) {
    return [&source, from, to, op](Wide x, Wide y, std::uint32_t before) -> std::optional<std::uint32_t> {
        const Wide sx = x - to.x + from.x;
        const Wide sy = y - to.y + from.y;
        if (!within(from, sx, sy) || !within(source.bounds(), sx, sy)) return std::nullopt;
        return combined(op, before, source.row(static_cast<int>(sy))[sx]);
    };
}

// The source coordinate for a target coordinate; nothing outside the target area.
std::optional<Wide> scaled(Wide at, int from, int fromSide, int to, int toSide) {
    const Wide length = std::abs(Wide{toSide});
    Wide offset = at - (toSide < 0 ? Wide{to} + toSide : to);
    if (offset < 0 || offset >= length) return std::nullopt;
    if ((toSide < 0) != (fromSide < 0)) offset = length - 1 - offset;
    const Wide fromBegin = fromSide < 0 ? Wide{from} + fromSide : from;
    return fromBegin + offset * std::abs(Wide{fromSide}) / length;
}

Pick stretching(const Bitmap& source, const Rect& from, const Rect& to, Op op) {
    return [&source, from, to, op](Wide x, Wide y, std::uint32_t before) -> std::optional<std::uint32_t> {
        const auto sx = scaled(x, from.x, from.w, to.x, to.w);
        const auto sy = scaled(y, from.y, from.h, to.y, to.h);
        if (!sx || !sy || !within(source.bounds(), *sx, *sy)) return std::nullopt;
        if (from.w == 0 || from.h == 0) return std::nullopt;
        return combined(op, before, source.row(static_cast<int>(*sy))[*sx]);
    };
}

class Drawing : public ::testing::Test {
protected:
    Chooser choose{1};

    Bitmap canvas() {
        Bitmap bitmap = choose.noise({choose.between(1, 50), choose.between(1, 50)});
        if (choose.oneIn(3)) bitmap.setClip(choose.area());
        return bitmap;
    }
    Op op() { return std::array{Op::plain, Op::bitAnd, Op::bitOr}[static_cast<std::size_t>(choose.between(0, 2))]; }
};

TEST_F(Drawing, FillsInvertsAndOutlines) {
    for (int i = 0; i < 3000; ++i) {
        const Bitmap before = canvas();
        const Rect area = choose.area();
        const Colour colour = choose.colour();
        Bitmap filled = before;
        filled.fill(area, colour);
        const auto fill = [&](Wide x, Wide y, auto) {
            return within(area, x, y) ? std::optional(colour.rgb) : std::nullopt;
        };
        ASSERT_EQ(filled, modelled(before, fill));

        Bitmap inverted = before;
        inverted.invert(area);
        const auto invert = [&](Wide x, Wide y, std::uint32_t was) {
            return within(area, x, y) ? std::optional(was ^ 0xFFFFFFU) : std::nullopt;
        };
        ASSERT_EQ(inverted, modelled(before, invert));
        inverted.invert(area);
        ASSERT_EQ(inverted, before);

        Bitmap outlined = before;
        outlined.outline(area, colour);
        const auto outline = [&](Wide x, Wide y, auto) {
            const bool edge =
                x == area.x || y == area.y || x == Wide{area.x} + area.w - 1 || y == Wide{area.y} + area.h - 1;
            return edge && within(area, x, y) ? std::optional(colour.rgb) : std::nullopt;
        };
        ASSERT_EQ(outlined, modelled(before, outline));
    }
}

TEST_F(Drawing, CopiesBetweenBitmaps) {
    for (int i = 0; i < 5000; ++i) {
        const Bitmap source = choose.noise({choose.between(0, 40), choose.between(0, 40)});
        const Bitmap before = canvas();
        const Rect from = choose.area();
        const Point to{choose.coordinate(), choose.coordinate()};
        const Op how = op();
        Bitmap after = before;
        after.copy(source, from, to, how);
        ASSERT_EQ(after, modelled(before, copying(source, from, to, how)));
    }
}

TEST_F(Drawing, CopiesWithinOneBitmapInAllDirections) {
    for (int i = 0; i < 5000; ++i) {
        const Bitmap before = canvas();
        const Rect from{choose.between(-3, 20), choose.between(-3, 20), choose.between(1, 50),
                        choose.between(1, 50)};
        const Point to{from.x + choose.between(-4, 4), from.y + choose.between(-4, 4)};
        const Op how = op();
        Bitmap after = before;
        after.copy(after, from, to, how);
        ASSERT_EQ(after, modelled(before, copying(before, from, to, how)));
    }
}

TEST_F(Drawing, ScalesAndMirrors) {
    for (int i = 0; i < 8000; ++i) {
        const Bitmap source = choose.noise({choose.between(0, 40), choose.between(0, 40)});
        const Bitmap before = canvas();
        const Rect from = choose.oneIn(2) ? source.bounds() : choose.area();
        const Rect to = choose.area();
        const Op how = op();
        Bitmap after = before;
        after.stretch(source, from, to, how);
        const Bitmap expected = modelled(before, stretching(source, from, to, how));
        ASSERT_EQ(after, expected) << "at " << where(after, expected) << " in round " << i;
    }
}

// The ratios that have a loop of their own: halving, doubling, one to one, a single source pixel.
TEST_F(Drawing, ScalesByWholeRatios) {
    for (int i = 0; i < 4000; ++i) {
        const int width = choose.between(1, 30);
        const int ratio = choose.between(1, 4);
        const Bitmap source = choose.noise({width * (choose.oneIn(2) ? ratio : 1), choose.between(1, 20)});
        const int target = source.width() == width ? width * ratio : width;
        const Rect to{choose.between(-20, 20), choose.between(-5, 20), choose.oneIn(3) ? -target : target,
                      choose.oneIn(3) ? -12 : 12};
        const Rect from = choose.oneIn(3) ? Rect{0, 0, 1, 1} : source.bounds();
        const Bitmap before = canvas();
        const Op how = op();
        Bitmap after = before;
        after.stretch(source, from, to, how);
        ASSERT_EQ(after, modelled(before, stretching(source, from, to, how))) << "in round " << i;
    }
}

TEST_F(Drawing, ScalesFromItselfAsItWas) {
    const Bitmap before = choose.noise({40, 40});
    Bitmap after = before;
    after.stretch(after, {0, 0, 20, 20}, {5, 5, 35, 30});
    EXPECT_EQ(after, modelled(before, stretching(before, {0, 0, 20, 20}, {5, 5, 35, 30}, Op::plain)));
}

// Draws once on a small bitmap and once, moved, on one large enough for all of it: what is seen must agree.
void expectClipped(Size size, const std::function<void(Bitmap&, Point)>& draw) {
    constexpr int far = 100;
    Bitmap small(size);
    draw(small, {0, 0});
    Bitmap large({size.w + 2 * far, size.h + 2 * far});
    draw(large, {far, far});
    Bitmap cut(size);
    cut.copy(large, {far, far, size.w, size.h}, {0, 0});
    ASSERT_EQ(small, cut) << "at " << where(small, cut);
}

TEST_F(Drawing, LinesAreWholeAndClipped) {
    for (int i = 0; i < 3000; ++i) {
        const Point a{choose.between(-45, 85), choose.between(-45, 85)};
        const Point b = choose.oneIn(5) ? Point{a.x, choose.between(-45, 85)}
                                        : Point{choose.between(-45, 85), choose.between(-45, 85)};
        expectClipped({40, 40}, [&](Bitmap& on, Point by) { on.line(a + by, b + by, white); });

        Bitmap whole({140, 140});
        const Point by{50, 50};
        whole.line(a + by, b + by, white);
        EXPECT_EQ(whole.pixel(a + by), 0xFFFFFF);
        EXPECT_EQ(whole.pixel(b + by), 0xFFFFFF);
        int count = 0;
        for (int y = 0; y < 140; ++y) {
            for (int x = 0; x < 140; ++x) {
                if (whole.pixel({x, y}) == 0) continue;
                ++count;
                // No pixel lies further than half a one from the true line, measured along an axis.
                const double across = static_cast<double>(b.x - a.x) * (y - 50 - a.y) -
                                      static_cast<double>(b.y - a.y) * (x - 50 - a.x);
                EXPECT_LE(std::abs(across), std::max(std::abs(b.x - a.x), std::abs(b.y - a.y)) / 2.0);
            }
        }
        EXPECT_EQ(count, std::max(std::abs(b.x - a.x), std::abs(b.y - a.y)) + 1);
    }
}

TEST_F(Drawing, CirclesAreRoundAndClipped) {
    for (int i = 0; i < 500; ++i) {
        const Point centre{choose.between(-40, 80), choose.between(-40, 80)};
        const int radius = choose.between(0, 60);
        expectClipped({40, 40}, [&](Bitmap& on, Point by) { on.circle(centre + by, radius, white); });
    }
    for (int radius = 0; radius < 60; ++radius) {
        Bitmap bitmap({121, 121});
        bitmap.circle({60, 60}, radius, white);
        for (int y = -60; y <= 60; ++y) {
            for (int x = -60; x <= 60; ++x) {
                const bool set = bitmap.pixel({60 + x, 60 + y}) != 0;
                EXPECT_EQ(set, bitmap.pixel({60 + y, 60 - x}) != 0);  // a quarter turn changes nothing
                EXPECT_TRUE(!set || std::abs(std::hypot(x, y) - radius) < 0.75);
            }
        }
        EXPECT_NE(bitmap.pixel({60 + radius, 60}), 0);
    }
    Bitmap none({20, 20});
    none.circle({10, 10}, -1, white);
    EXPECT_EQ(none, Bitmap({20, 20}));
}

TEST_F(Drawing, WildFiguresEndSoon) {
    constexpr int low = std::numeric_limits<int>::min();
    constexpr int high = std::numeric_limits<int>::max();
    Bitmap bitmap({40, 40});
    bitmap.line({low, low}, {high, high}, white);
    EXPECT_EQ(bitmap.pixel({20, 20}), 0xFFFFFF);
    bitmap.line({high, 7}, {low, 7}, white);
    EXPECT_EQ(bitmap.pixel({39, 7}), 0xFFFFFF);
    for (int i = 0; i < 2000; ++i) {
        bitmap.line({choose.coordinate(), choose.coordinate()}, {choose.coordinate(), choose.coordinate()}, white);
        bitmap.circle({choose.coordinate(), choose.coordinate()}, choose.coordinate(), white);
    }
}

TEST_F(Drawing, PixelsOutsideAreNone) {
    Bitmap bitmap({4, 3}, Colour(0x123456));
    for (const Point p : {Point{-1, 0}, {0, -1}, {4, 0}, {0, 3}, {1 << 30, 1 << 30}}) {
        EXPECT_EQ(bitmap.pixel(p), -1);
        bitmap.setPixel(p, white);
    }
    EXPECT_EQ(bitmap, Bitmap({4, 3}, Colour(0x123456)));
    EXPECT_EQ(Bitmap({-5, 7}).size(), (Size{0, 7}));
    EXPECT_EQ(Bitmap().pixel({0, 0}), -1);
}

}  // namespace
}  // namespace zentrox
