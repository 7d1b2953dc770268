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
    const auto limit = [](std::int32_t number) { return PIspiel{.Zeichen = "3", .anzahl = number}.Frist(); };
    EXPECT_EQ(limit(1), 1990);
    EXPECT_EQ(limit(40), 1600);
    EXPECT_EQ(limit(199), 10);
    EXPECT_EQ(limit(200), 0);
    EXPECT_EQ(limit(10'000), 0);
}

TEST(PiRules, TakeTheCommaForThePoint) {
    const auto goesOn = [](char asked, std::int16_t key) {
        PIspiel game{.Zeichen = Text(1, asked) + "x", .anzahl = 1};
        return game.Antwort(key);
    };
    EXPECT_TRUE(goesOn('.', '.'));
    EXPECT_TRUE(goesOn('.', ','));
    EXPECT_TRUE(goesOn('3', '3'));
    EXPECT_FALSE(goesOn('3', '4'));
    EXPECT_FALSE(goesOn('3', 0));
    EXPECT_TRUE(goesOn("ä"_t[0], 0xE4));
    EXPECT_FALSE(goesOn('A', 'a'));
}

// How many draws a character takes: three for its colour, one for its size, two for its place.
TEST(PiRules, LeaveMoreAndMoreToChance) {
    struct Case {
        int number;
        int draws;
    };
    const auto ask = [](int number, Random& chance) {
        return PIspiel{.Zeichen = Text(100, '7'), .anzahl = number - 1}.Weiter(chance);
    };
    for (const Case& c :
         {Case{1, 0}, Case{11, 0}, Case{12, 2}, Case{25, 2}, Case{26, 3}, Case{50, 3}, Case{51, 6}}) {
        Random chance(9);
        const Pifrage shown = ask(c.number, chance);
        Random same(9);
        for (int i = 0; i < c.draws; ++i) same.draw();
        EXPECT_EQ(chance.draw(), same.draw()) << c.number;
        EXPECT_EQ(shown.nummer, c.number);
        EXPECT_TRUE(c.number > 50 || shown.farbe == white) << c.number;
        EXPECT_TRUE(c.number > 25 || shown.schrift == 72) << c.number;
        EXPECT_EQ(shown.ort.has_value(), c.number >= 12) << c.number;
        EXPECT_TRUE(shown.schrift >= 8 && shown.schrift <= 96) << c.number;
    }
    Random chance(1);
    for (int i = 0; i < 1000; ++i) {
        const Colour colour = ask(51, chance).farbe;
        EXPECT_TRUE((colour.rgb & 0xFF) >= 64 && (colour.rgb >> 8 & 0xFF) >= 64 && colour.rgb >> 16 >= 64);
    }
}

}  // namespace
}  // namespace zentrox::test
