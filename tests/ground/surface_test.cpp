#include "platform/window/surface.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/fake_fonts.h"

namespace zentrox {
namespace {

constexpr Colour red{255, 0, 0};
constexpr Colour blue{0, 0, 255};
constexpr Colour green{0, 255, 0};

class Surfaces : public ::testing::Test {
protected:
    test::FakeFonts fonts;
    Surface surface{fonts, Size{40, 30}, blue};

    std::int32_t seen(Point p) const { return surface.screen().pixel(p); }
    std::int32_t stored(Point p) const { return surface.image().pixel(p); }
    static std::int32_t value(Colour colour) { return static_cast<std::int32_t>(colour.rgb); }
};

TEST_F(Surfaces, DrawPastTheStoredImageWithAutoRedrawOff) {
    surface.box({0, 0}, {9, 9}, red);
    surface.setAutoRedraw(false);
    EXPECT_EQ(surface.pixel({5, 5}), value(red));
    surface.box({5, 5}, {14, 14}, green);
    EXPECT_EQ(seen({5, 5}), value(green));
    EXPECT_EQ(seen({0, 0}), value(red));
    EXPECT_EQ(stored({5, 5}), value(red));
    EXPECT_EQ(surface.pixel({5, 5}), value(green));

    // Back on, the screen keeps what it shows until the stored image changes, and then shows the whole of that.
    surface.setAutoRedraw(true);
    EXPECT_EQ(seen({5, 5}), value(green));
    EXPECT_EQ(surface.pixel({5, 5}), value(red));
    surface.setPixel({39, 29}, white);
    EXPECT_EQ(seen({5, 5}), value(red));
    EXPECT_EQ(seen({39, 29}), value(white));
}

TEST_F(Surfaces, RefreshShowsTheStoredImageAgain) {
    surface.setAutoRedraw(false);
    surface.clear();
    surface.box({0, 0}, {39, 29}, red);
    surface.refresh();
    EXPECT_EQ(surface.screen(), Bitmap({40, 30}, blue));
    surface.setPixel({1, 1}, red);
    EXPECT_EQ(seen({0, 0}), value(blue));  // drawing begins on the stored image, not on what had been drawn
}

TEST_F(Surfaces, PicturesReplaceTheStoredImageAndOutliveClearing) {
    surface.box({0, 0}, {39, 29}, red);
    surface.setPicture(Bitmap({10, 50}, green));
    EXPECT_EQ(stored({9, 29}), value(green));
    EXPECT_EQ(stored({10, 0}), value(blue));  // the back colour, not what was drawn
    surface.box({0, 0}, {39, 29}, red);
    surface.setBack(black);
    EXPECT_EQ(stored({39, 0}), value(red));
    surface.clear();
    EXPECT_EQ(stored({0, 0}), value(green));
    EXPECT_EQ(stored({39, 0}), value(black));
    surface.removePicture();
    EXPECT_EQ(surface.image(), Bitmap({40, 30}, black));
}

TEST_F(Surfaces, PictureOfItselfKeepsWhatWasDrawn) {
    surface.box({0, 0}, {4, 4}, red);
    surface.setPicture(surface.image());
    surface.box({0, 0}, {39, 29}, white);
    surface.clear();
    EXPECT_EQ(stored({4, 4}), value(red));
    EXPECT_EQ(stored({5, 5}), value(blue));
    surface.setAutoRedraw(false);
    surface.box({0, 0}, {39, 29}, white);
    surface.setPicture(surface.screen());
    EXPECT_EQ(surface.image(), Bitmap({40, 30}, white));
}

TEST_F(Surfaces, PictureEndsWhatWasDrawnOnTheScreenAlone) {
    surface.setAutoRedraw(false);
    surface.box({0, 0}, {39, 29}, red);
    surface.setPicture(Bitmap({40, 30}, green));
    EXPECT_EQ(surface.screen(), Bitmap({40, 30}, green));
}

TEST_F(Surfaces, ClearingPastAPictureLeavesThePicture) {
    const Bitmap picture({40, 30}, green);
    surface.setPicture(picture);
    surface.setAutoRedraw(false);
    surface.clear();
    EXPECT_EQ(surface.screen(), picture);
    surface.box({0, 0}, {39, 29}, red);
    surface.clear();
    EXPECT_EQ(surface.screen(), picture);
    surface.setAutoRedraw(true);
    surface.setPixel({0, 0}, red);
    surface.clear();
    EXPECT_EQ(surface.image(), picture);
}

TEST_F(Surfaces, TakeThePicturesSizeAndKeepWhatFitsInANewOne) {
    surface.takePicture(Bitmap({73, 57}, green));
    EXPECT_EQ(surface.area(), (Rect{0, 0, 73, 57}));
    EXPECT_EQ(surface.image(), Bitmap({73, 57}, green));
    surface.setPixel({1, 1}, red);
    surface.resize({80, 20});
    EXPECT_EQ(stored({1, 1}), value(red));
    EXPECT_EQ(stored({72, 19}), value(green));
    EXPECT_EQ(stored({73, 0}), value(blue));
    EXPECT_EQ(stored({0, 20}), -1);
    surface.takePicture(Bitmap());
    EXPECT_TRUE(surface.image().empty());
    surface.setAutoRedraw(false);
    surface.box({0, 0}, {5, 5}, red);
    surface.print("x");
    EXPECT_EQ(surface.pixel({0, 0}), -1);
}

TEST_F(Surfaces, CornersComeInAnyOrderAndBelongToTheFigure) {
    surface.box({12, 9}, {10, 7}, red);
    surface.outline({20, 20}, {25, 22}, red);
    surface.line({30, 5}, {35, 5}, red);
    surface.invertBox({0, 29}, {3, 26});
    EXPECT_EQ(stored({10, 7}), value(red));
    EXPECT_EQ(stored({12, 9}), value(red));
    EXPECT_EQ(stored({13, 9}), value(blue));
    EXPECT_EQ(stored({25, 22}), value(red));
    EXPECT_EQ(stored({24, 21}), value(blue));
    EXPECT_EQ(stored({30, 5}), value(red));
    EXPECT_EQ(stored({35, 5}), value(red));
    EXPECT_EQ(stored({3, 26}), 0xFFFF00);
    surface.invertBox({0, 26}, {3, 29});
    EXPECT_EQ(stored({3, 26}), value(blue));

    constexpr int low = std::numeric_limits<int>::min();
    constexpr int high = std::numeric_limits<int>::max();
    surface.box({high, high}, {low, low}, green);
    EXPECT_EQ(surface.image(), Bitmap({40, 30}, green));
    surface.outline({low, low}, {high, high}, red);
    surface.circle({low, high}, high, green);
    EXPECT_EQ(stored({20, 20}), value(green));
}

TEST_F(Surfaces, TextGoesToTheCursor) {
    surface.currentX = 12;
    surface.currentY = 3;
    surface.print("ab\r\nc");
    EXPECT_EQ(surface.currentX, 0);
    EXPECT_EQ(surface.currentY, 3 + 2 * 13);
    EXPECT_EQ(stored({12, 5}), value(white));
    EXPECT_EQ(stored({0, 18}), value(white));  // the second line starts at the edge
    EXPECT_EQ(stored({0, 5}), value(blue));
    surface.printAt({6, 1}, "xyz", red);
    EXPECT_EQ(surface.currentX, 6 + 3 * 6);
    EXPECT_EQ(surface.currentY, 1);
    EXPECT_EQ(surface.foreground, white);
    EXPECT_EQ(stored({6, 3}), value(red));
    EXPECT_EQ(surface.measure("abc\rab\n"), (Size{18, 39}));
    surface.currentX = surface.currentY = 1 << 30;
    surface.print("far\naway");
    surface.clear();
    EXPECT_EQ(surface.currentX, 0);
    EXPECT_EQ(surface.currentY, 0);
}

TEST_F(Surfaces, KnowTheTextsPrintedSinceTheLastClearing) {
    surface.print("Die Tür ist zu."_t);
    surface.printAt({0, 0}, "Gewonnen!", red);
    EXPECT_TRUE(surface.shows("Tür"_t));
    EXPECT_TRUE(surface.shows("wonnen"));
    EXPECT_FALSE(surface.shows("zu.Gewonnen"));
    surface.clear();
    EXPECT_FALSE(surface.shows("Tür"_t));
    surface.print("a");
    surface.setPicture(Bitmap({1, 1}));
    EXPECT_FALSE(surface.shows("a"));
    for (int i = 0; i < 5000; ++i) surface.printAt({0, 0}, "#" + std::to_string(i), red);
    EXPECT_TRUE(surface.shows("#4999"));
    EXPECT_FALSE(surface.shows("#17."));
    EXPECT_FALSE(surface.shows("#0"));  // the oldest are forgotten
}

TEST_F(Surfaces, PaintWhatIsSeenWithinTheClip) {
    surface.setAutoRedraw(false);
    surface.box({0, 0}, {39, 29}, red);
    Bitmap window({100, 100});
    window.setClip({10, 10, 5, 5});
    surface.paint(window, {12, 8});
    EXPECT_EQ(window.pixel({12, 10}), value(red));
    EXPECT_EQ(window.pixel({11, 10}), 0);
    EXPECT_EQ(window.pixel({15, 10}), 0);
}

}  // namespace
}  // namespace zentrox
