// Pictures made larger, whole and in parts.
#include "platform/picture/enlarge.h"

#include <gtest/gtest.h>

namespace zentrox {
namespace {

Bitmap noise(Size size) {
    Bitmap picture(size);
    std::uint32_t state = 1;
    for (int y = 0; y < size.h; ++y)
        for (int x = 0; x < size.w; ++x) {
            state = state * 1664525U + 1013904223U;
            picture.row(y)[x] = state >> 8U;
        }
    return picture;
}

Bitmap enlarged(const Bitmap& picture, double scale, Enlarging how) {
    Enlarger enlarger(picture.size(), scale, how);
    Bitmap out(enlarger.size());
    enlarger.paint(picture, picture.bounds(), {out.row(0), out.width() * 4, out.size()}, {0, 0});
    return out;
}

TEST(Enlarge, WholeMultiplesAreSquares) {
    const Bitmap picture = noise({7, 5});
    for (const Enlarging how : {Enlarging::whole, Enlarging::sharp})
        for (const int scale : {1, 2, 3, 5}) {
            const Bitmap out = enlarged(picture, scale, how);
            ASSERT_EQ(out.size(), (Size{7 * scale, 5 * scale}));
            for (int y = 0; y < out.height(); ++y)
                for (int x = 0; x < out.width(); ++x)
                    ASSERT_EQ(out.row(y)[x], picture.row(y / scale)[x / scale]) << scale << ' ' << x << ' ' << y;
        }
}

TEST(Enlarge, SharpBlendsOnlyWhereTwoPixelsMeet) {
    Bitmap picture({2, 1}, black);
    picture.setPixel({1, 0}, white);
    const Bitmap out = enlarged(picture, 2.5, Enlarging::sharp);
    ASSERT_EQ(out.size(), (Size{5, 2}));
    const std::uint32_t* const row = out.row(0);
    EXPECT_EQ(row[0], 0U);
    EXPECT_EQ(row[1], 0U);
    EXPECT_NEAR(static_cast<int>(row[2] & 0xFFU), 128, 1);
    EXPECT_EQ(row[3], 0xFFFFFFU);
    EXPECT_EQ(row[4], 0xFFFFFFU);
}

TEST(Enlarge, SmoothGoesFromColourToColour) {
    Bitmap picture({2, 1}, black);
    picture.setPixel({1, 0}, white);
    const Bitmap out = enlarged(picture, 8, Enlarging::smooth);
    for (int x = 1; x < out.width(); ++x) EXPECT_GE(out.row(0)[x] & 0xFFU, out.row(0)[x - 1] & 0xFFU);
    EXPECT_EQ(out.row(0)[0], 0U);
    EXPECT_EQ(out.row(0)[15], 0xFFFFFFU);
}

// Only what changed is painted, and looks as if all had been.
TEST(Enlarge, APartComesOutAsWithinTheWhole) {
    const Bitmap before = noise({60, 40});
    for (const Enlarging how : {Enlarging::whole, Enlarging::sharp, Enlarging::smooth})
        for (const double scale : {0.75, 1.0, 1.59, 2.0, 2.236}) {
            Bitmap after = before;
            const Rect part{13, 9, 21, 17};
            after.fill(part, white);
            Bitmap out = enlarged(before, scale, how);
            Enlarger enlarger(after.size(), scale, how);
            enlarger.paint(after, part, {out.row(0), out.width() * 4, out.size()}, {0, 0});
            EXPECT_EQ(out, enlarged(after, scale, how)) << scale << ' ' << static_cast<int>(how);
        }
}

TEST(Enlarge, WhatLiesOutsideTheTargetIsLeftOut) {
    const Bitmap picture = noise({20, 20});
    Enlarger enlarger(picture.size(), 1.5, Enlarging::sharp);
    for (const Point corner : {Point{-9, -9}, Point{10, 10}, Point{-100, 0}, Point{25, 25}}) {
        Bitmap out({24, 24}, Colour(1, 2, 3));
        const Rect painted =
            enlarger.paint(picture, picture.bounds(), {out.row(0), out.width() * 4, out.size()}, corner);
        EXPECT_EQ(intersection(painted, out.bounds()).empty(), painted.empty());
    }
}

TEST(Enlarge, FindsTheScale) {
    EXPECT_EQ(fittingScale({640, 483}, {1920, 1080}, Enlarging::whole), 2);
    EXPECT_NEAR(fittingScale({640, 483}, {1366, 768}, Enlarging::sharp), 768.0 / 483, 1e-9);
    EXPECT_NEAR(fittingScale({640, 483}, {600, 483}, Enlarging::whole), 600.0 / 640, 1e-9);
    EXPECT_EQ(fittingScale({640, 483}, {640, 483}, Enlarging::whole), 1);
}

}  // namespace
}  // namespace zentrox
