#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <set>
#include <vector>

#include "platform/picture/font.h"
#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

class SystemFonts : public ::testing::Test {
protected:
    std::unique_ptr<Fonts> fonts = makeFonts();

    Bitmap drawn(const FontSpec& wanted, TextView line, Rect clip = {0, 0, 600, 200}) {
        Bitmap bitmap({600, 200});
        bitmap.setClip(clip);
        fonts->get(wanted).draw(bitmap, {50, 50}, line, white);
        return bitmap;
    }

    static Rect extent(const Bitmap& bitmap) {
        Rect area;
        for (int y = 0; y < bitmap.height(); ++y)
            for (int x = 0; x < bitmap.width(); ++x)
                if (bitmap.row(y)[x] != 0) area = united(area, {x, y, 1, 1});
        return area;
    }
};

const std::vector<FontSpec> specsOfTheGame{
    {"MS Sans Serif", 8.25F, false}, {"MS Sans Serif", 13.5F, true}, {"Arial", 22, true},    {"Arial", 48, true},
    {"Times New Roman", 8, true},    {"Times New Roman", 72, true},  {"Courier", 10, false}, {"Fixedsys", 9, true},
    {"Gibt Es Nicht", 12, false}};

TEST_F(SystemFonts, FixedsysHasACellOfEightByFourteen) {
    for (const FontSpec& wanted : {FontSpec{"Fixedsys", 9, true}, {"fixedsys", 72, false}}) {
        const Font& font = fonts->get(wanted);
        EXPECT_EQ(font.lineHeight(), 14);
        for (int c = 0; c < 256; ++c) EXPECT_EQ(font.width(Text(1, static_cast<char>(c))), 8);
        const Rect area = extent(drawn(wanted, "Ägq|"_t));
        EXPECT_GE(area.x, 50);
        EXPECT_GE(area.y, 50);
        EXPECT_LE(area.right(), 50 + 32);
        EXPECT_LE(area.bottom(), 50 + 14);
    }
}

TEST_F(SystemFonts, TheSmallFontIsOfTheUsualSizeAndCrisp) {
    const Font& font = fonts->get({});
    EXPECT_EQ(font.lineHeight(), 13);
    EXPECT_GT(font.width("M"), font.width("i"));
    EXPECT_NEAR(font.width("Spiel beginnen"), 70, 12);
    const Bitmap text = drawn({}, "Schrift mit Kanten");
    for (int y = 0; y < text.height(); ++y)
        for (int x = 0; x < text.width(); ++x) ASSERT_TRUE(text.row(y)[x] == 0 || text.row(y)[x] == white.rgb);
}

TEST_F(SystemFonts, WidthsAddUp) {
    for (const FontSpec& wanted : specsOfTheGame) {
        const Font& font = fonts->get(wanted);
        const TextView text = "AVATAR, Wäre To. fi 11"_t;
        for (std::size_t cut = 0; cut <= text.size(); ++cut)
            EXPECT_EQ(font.width(text.substr(0, cut)) + font.width(text.substr(cut)), font.width(text));
        EXPECT_EQ(font.width(""), 0);
    }
}

TEST_F(SystemFonts, SeveralLinesMeasureAllTheirLines) {
    const Font& font = fonts->get({});
    EXPECT_EQ(font.measure("kurz\rdie längste Zeile\r\n"_t), (Size{font.width("die längste Zeile"_t), 39}));
    EXPECT_EQ(font.measure(""), (Size{0, 13}));
}

TEST_F(SystemFonts, LettersStayNearTheirCells) {
    for (const FontSpec& wanted : specsOfTheGame) {
        const Font& font = fonts->get(wanted);
        for (const char c : "ÄÖÜäöüßjfWg€"_t) {
            const Rect area = extent(drawn(wanted, Text(1, c)));
            ASSERT_FALSE(area.empty()) << wanted.family << " lacks " << toUtf8(Text(1, c));
            const int lean = font.lineHeight() / 4;
            EXPECT_GE(area.x, 50 - lean);
            EXPECT_LE(area.right(), 50 + font.width(Text(1, c)) + lean);
            EXPECT_GE(area.y, 50 - 1) << wanted.family << " " << toUtf8(Text(1, c));
            EXPECT_LE(area.bottom(), 50 + font.lineHeight() + 1) << wanted.family << " " << toUtf8(Text(1, c));
        }
        // A capital with dots is the capital with something above it.
        const Rect plain = extent(drawn(wanted, "U"));
        const Rect dotted = extent(drawn(wanted, "Ü"_t));
        EXPECT_LT(dotted.y, plain.y);
        EXPECT_EQ(dotted.bottom(), plain.bottom());
    }
}

TEST_F(SystemFonts, DrawingKeepsToTheClip) {
    for (const FontSpec& wanted : specsOfTheGame) {
        const TextView text = "Ägypten, jäh"_t;
        const Rect clip{57, 54, 31, 6};
        Bitmap expected({600, 200});
        expected.copy(drawn(wanted, text), clip, clip.at());
        EXPECT_EQ(drawn(wanted, text, clip), expected);
        Bitmap tiny({3, 3});
        for (const int far : {-1 << 30, 1 << 30, -5}) fonts->get(wanted).draw(tiny, {far, far}, text, white);
    }
}

TEST_F(SystemFonts, SmoothLettersMixWithTheGround) {
    Bitmap ground({200, 120}, Colour(0, 0, 255));
    fonts->get({"Arial", 48, true}).draw(ground, {0, 0}, "O", Colour(255, 0, 0));
    bool mixed = false;
    for (int y = 0; y < ground.height(); ++y) {
        for (int x = 0; x < ground.width(); ++x) {
            const std::uint32_t pixel = ground.row(y)[x];
            const int sum = static_cast<int>((pixel >> 16U) + (pixel & 0xFFU));
            EXPECT_NEAR(sum, 255, 1);
            EXPECT_EQ(pixel & 0xFF00U, 0U);
            mixed = mixed || (pixel != 0xFF0000 && pixel != 0x0000FF);
        }
    }
    EXPECT_TRUE(mixed);
}

TEST_F(SystemFonts, EveryCharacterAndSizeCanBePrinted) {
    Bitmap bitmap({300, 100});
    for (const float points :
         {-5.0F, 0.0F, 0.1F, 1.0F, 8.5F, 63.7F, 1e9F, std::numeric_limits<float>::quiet_NaN()}) {
        const Font& font = fonts->get({"Times New Roman", points, true});
        EXPECT_GT(font.lineHeight(), 0);
        for (int c = 0; c < 256; ++c) font.draw(bitmap, {10, 10}, Text(1, static_cast<char>(c)), white);
    }
    EXPECT_EQ(fonts->get({"Arial", 12}).width("Wort"), fonts->get({"ARIAL", 12.01F}).width("Wort"));
    EXPECT_LT(fonts->get({"Arial", 12}).width("Wort"), fonts->get({"Arial", 12, true}).width("Wort"));
}

// The fonts of a machine are what a configuration file names; one of our own stands for a poorer machine.
class PoorMachine : public ::testing::Test {
protected:
    test::TempDirectory temp;

    std::unique_ptr<Fonts> fontsIn(const std::string& directories) {
        const auto file =
            temp.write("fonts.conf", "<?xml version=\"1.0\"?><fontconfig>" + directories + "<cachedir>" +
                                         (temp.path() / "cache").string() + "</cachedir></fontconfig>");
        setenv("FONTCONFIG_FILE", file.c_str(), 1);
        return makeFonts();
    }
    void TearDown() override { unsetenv("FONTCONFIG_FILE"); }
};

TEST_F(PoorMachine, AnyFontServesWhereTheNamedOnesAreMissing) {
    std::filesystem::create_directory_symlink("/usr/share/fonts/truetype", temp.path() / "some");
    const auto fonts = fontsIn("<dir>" + (temp.path() / "some").string() + "</dir>");
    const Font& fixed = fonts->get({"Fixedsys", 9, true});
    EXPECT_EQ(fixed.lineHeight(), 14);
    EXPECT_EQ(fixed.width("Abc"), 24);
    Bitmap bitmap({50, 20});
    fixed.draw(bitmap, {0, 0}, "Abc", white);
    EXPECT_FALSE(bitmap == Bitmap({50, 20}));
}

TEST_F(PoorMachine, WithoutAnyFontTheProgramsOwnStandsIn) {
    const auto fonts = fontsIn("");
    EXPECT_FALSE(fonts->lacking());
    const Font& plain = fonts->get({});
    EXPECT_TRUE(fonts->lacking());
    // All that a text can have, and not one box for all.
    std::set<std::vector<std::int32_t>> looks;
    for (int c = 0x21; c < 256; ++c) {
        Bitmap one({40, 40});
        plain.draw(one, {10, 10}, Text(1, static_cast<char>(c)), white);
        std::vector<std::int32_t> pixels;
        for (int i = 0; i < 1600; ++i) pixels.push_back(one.pixel({i % 40, i / 40}));
        looks.insert(pixels);
    }
    EXPECT_GT(looks.size(), 205U);
    EXPECT_GT(fonts->get({"MS Sans Serif", 8.25F, true}).width("Wort"), plain.width("Wort"));
    const Font& fixed = fonts->get({"Fixedsys", 9, true});
    EXPECT_EQ(fixed.lineHeight(), 14);
    EXPECT_EQ(fixed.width("Abc"), 24);
}

}  // namespace
}  // namespace zentrox
