#include <gtest/gtest.h>

#include "engine/state/farbe.h"
#include "engine/state/schreibmaschine.h"
#include "tests/support/fake_fonts.h"

namespace zentrox::test {
namespace {

using Ereignis = Schreibmaschine::Ereignis;

// What stands in the cell of a letter: the colour of the block that the tests' font draws for it.
struct Page {
    FakeFonts fonts;
    Surface surface{fonts, Size{300, 200}};
    Schreibmaschine machine;

    Ereignis steps(TextView page, int count) {
        Ereignis last = Ereignis::nichts;
        for (int i = 0; i < count; ++i) last = machine.Schritt(surface, page);
        return last;
    }
    Colour cell(int column, int row) {
        const auto pixel = surface.pixel({2 + 8 * column + 2, 2 + 14 * row + 6});
        return Colour(static_cast<std::uint32_t>(pixel));
    }
};

TEST(Typewriter, ALetterIsDarkThenGreyThenWhite) {
    Page page;
    const TextView text = "  AB  |C  ";
    page.steps(text, 1);
    EXPECT_EQ(page.cell(0, 0), Farbe16(8));
    page.steps(text, 1);
    EXPECT_EQ(page.cell(0, 0), Farbe16(7));
    EXPECT_EQ(page.cell(1, 0), Farbe16(8));
    page.steps(text, 1);
    EXPECT_EQ(page.cell(0, 0), Farbe16(15));
    page.steps(text, 3);  // a blank, the line end, and C
    EXPECT_EQ(page.cell(1, 0), Farbe16(15));
    EXPECT_EQ(page.cell(0, 1), Farbe16(8));
    EXPECT_EQ(page.cell(1, 1), black);
}

TEST(Typewriter, PausesBehindAPageAndClearsWithTheNext) {
    Page page;
    const TextView text = "  AB";
    EXPECT_EQ(page.steps(text, 26), Ereignis::nichts);
    EXPECT_EQ(page.steps(text, 1), Ereignis::seitenende) << "two letters and 25 steps";
    EXPECT_EQ(page.cell(0, 0), Farbe16(7)) << "the last letters stay dark";
    page.steps("  xy", 1);
    EXPECT_EQ(page.cell(1, 0), black) << "cleared";
    page.machine.Anfangen();
    page.steps("   ", 1);
    EXPECT_EQ(page.cell(0, 0), black);
}

TEST(Typewriter, AMarkSkipsTwoCharactersAndPrintsNothing) {
    Page page;
    const TextView text = "  #xyA";
    EXPECT_EQ(page.steps(text, 1), Ereignis::marke);
    EXPECT_EQ(page.cell(0, 0), black);
    EXPECT_EQ(page.steps(text, 1), Ereignis::nichts);
    EXPECT_EQ(page.cell(0, 0), Farbe16(8));
    EXPECT_EQ(page.steps("", 24), Ereignis::nichts);
}

}  // namespace
}  // namespace zentrox::test
