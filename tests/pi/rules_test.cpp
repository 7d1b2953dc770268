#include <gtest/gtest.h>

#include "games/pi/pispiel.h"
#include "platform/values/error.h"
#include "tests/support/temp_directory.h"
#include "tools/digits/pi.h"

namespace zentrox::test {
namespace {

TEST(PiDigits, AreThoseOfPi) {
    const std::string pi = piCharacters(10'002);
    EXPECT_EQ(pi.size(), 10'002U);
    EXPECT_EQ(pi.substr(0, 52), "3.14159265358979323846264338327950288419716939937510");
    // Known places: the six nines, the end of the first thousand decimals, of the first ten thousand.
    EXPECT_EQ(pi.substr(2 + 761, 9), "999999837");
    EXPECT_EQ(pi.substr(2 + 990, 10), "2164201989");
    EXPECT_EQ(pi.substr(2 + 9990, 10), "5256375678");
    EXPECT_EQ(piCharacters(1), "3");
    EXPECT_EQ(piCharacters(40), pi.substr(0, 40)) << "no digit depends on how many are asked";
}

TEST(PiFile, KeepsWhatCanBeTyped) {
    struct Case {
        std::string bytes;
        Text asked;
    };
    const TempDirectory directory;
    const Files files(directory.path());
    const auto read = [&] { return PiLesen(files, files.programDirectory() + "games\\Pi10000.txt"); };
    for (const Case& c : {Case{"3.14", "3.14"}, Case{"3.1\r\n41 59\n", "3.141 59"}, Case{"3.\x80z", "3.\x80z"},
                          Case{std::string(12'000, '7'), Text(10'000, '7')}}) {
        directory.write("games/Pi10000.txt", c.bytes);
        EXPECT_EQ(read(), c.asked);
    }
    for (const char* empty : {"", "\r\n\t\n"}) {
        directory.write("games/Pi10000.txt", empty);
        EXPECT_THROW(read(), DataError);
    }
    std::filesystem::remove(directory.path() / "games/Pi10000.txt");
    EXPECT_THROW(read(), DataError);
}

TEST(PiRules, AskFasterAndFaster) {
    EXPECT_EQ(PiFrist(1), 1990);
    EXPECT_EQ(PiFrist(40), 1600);
    EXPECT_EQ(PiFrist(100), 1000);
    EXPECT_EQ(PiFrist(199), 10);
    EXPECT_EQ(PiFrist(200), 0);
    EXPECT_EQ(PiFrist(10'000), 0);
}

TEST(PiRules, TakeTheCommaForThePoint) {
    EXPECT_TRUE(PiRichtig('.', '.'));
    EXPECT_TRUE(PiRichtig(',', '.'));
    EXPECT_TRUE(PiRichtig('3', '3'));
    EXPECT_FALSE(PiRichtig('4', '3'));
    EXPECT_FALSE(PiRichtig(0, '3'));
    EXPECT_TRUE(PiRichtig(0xE4, "ä"_t[0]));
    EXPECT_FALSE(PiRichtig('a', 'A'));
}

// How many draws a character takes: three for its colour, one for its size, two for its place.
TEST(PiRules, LeaveMoreAndMoreToChance) {
    struct Case {
        int number;
        int draws;
    };
    for (const Case& c :
         {Case{1, 0}, Case{11, 0}, Case{12, 2}, Case{25, 2}, Case{26, 3}, Case{50, 3}, Case{51, 6}}) {
        Random chance(9);
        const Colour colour = PiFarbe(c.number, chance);
        const float points = PiSchrift(c.number, chance);
        const Point at = PiOrt(c.number, {369, 273}, {40, 80}, chance);
        Random same(9);
        for (int i = 0; i < c.draws; ++i) same.draw();
        EXPECT_EQ(chance.draw(), same.draw()) << c.number;
        EXPECT_TRUE(c.number > 50 || colour == white) << c.number;
        EXPECT_TRUE(c.number > 25 || points == 72) << c.number;
        EXPECT_TRUE(c.number >= 12 || at == (Point{164, 96})) << c.number;
        EXPECT_TRUE(at.x >= 0 && at.x <= 329 && at.y >= 0 && at.y <= 193) << c.number;
        EXPECT_TRUE(points >= 8 && points <= 96) << c.number;
    }
    Random chance(1);
    for (int i = 0; i < 1000; ++i) {
        const Colour colour = PiFarbe(51, chance);
        EXPECT_TRUE((colour.rgb & 0xFF) >= 64 && (colour.rgb >> 8 & 0xFF) >= 64 && colour.rgb >> 16 >= 64);
    }
}

}  // namespace
}  // namespace zentrox::test
