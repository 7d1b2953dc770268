#include <gtest/gtest.h>

#include "saves_fixture.h"

namespace zentrox::test {
namespace {

constexpr TextView mark = "eXTenCion-File v1.1\r\n";

// A file with the given lines behind the flags, of which the first is "A".
Text fileWith(TextView rest) {
    Text bytes = Text(mark) + "Start.lsd\r\nA\r\n";
    for (int i = 1; i < MerkerAnzahl; ++i) bytes += "\r\n";
    return bytes + Text(rest);
}

TEST(SaveFile, HasItsBytes) {
    Zustand z;
    playOn(z);
    Text expected = Text(mark) + Text("Küche.lsd\r\nBRIEF\r\n\r\nBÖSE\r\n"_t);
    for (int i = 3; i < 1000; ++i) expected += "\r\n";
    expected += Text("LETZTER\r\n 1 \r\n\\spiel\\items\\seil.bmp\r\n\\spiel\\items\\Schlüssel.bmp\r\n 12 \r\n"_t);
    EXPECT_EQ(SpielstandSchreiben(z), expected);

    Zustand fresh;
    fresh.RaumDatei = "Start.lsd";
    fresh.BösePunkte = -3;
    EXPECT_TRUE(SpielstandSchreiben(fresh).ends_with("\r\n\r\n-1 \r\n-3 \r\n"));
}

TEST(SaveFile, GivesBackWhatWasSaved) {
    Zustand saved;
    playOn(saved);
    for (std::size_t i = 0; i < 51; ++i) saved.Inventar[i] = "\\items\\" + std::to_string(i);
    saved.InventarLetzter = 50;
    for (std::size_t i = 0; i < 1001; ++i) saved.Merker[i] = "M" + std::to_string(i);
    Zustand z;
    z.Merker[7] = "VORHER";
    ASSERT_TRUE(SpielstandLesen(SpielstandSchreiben(saved), z));
    EXPECT_EQ(savedPart(z), savedPart(saved));
}

TEST(SaveFile, CutAnywhereIsRefused) {
    Zustand saved;
    playOn(saved);
    const Text whole = SpielstandSchreiben(saved);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Zustand z;
        EXPECT_FALSE(SpielstandLesen(TextView(whole).substr(0, length), z)) << length;
        EXPECT_EQ(z.BösePunkte, 0);
    }
}

TEST(SaveFile, WhatIsReadBeforeAFailureStays) {
    Zustand z;
    z.InventarLetzter = 3;
    z.BösePunkte = 5;
    EXPECT_FALSE(SpielstandLesen("anderes\r\nRaum.lsd\r\n", z));
    EXPECT_EQ(z.RaumDatei, "");
    EXPECT_FALSE(SpielstandLesen(fileWith(" 51 \r\n"), z)) << "52 items";
    EXPECT_EQ(z.RaumDatei, "Start.lsd");
    EXPECT_EQ(z.Merker[0], "A");
    EXPECT_EQ(z.InventarLetzter, 3) << "a number that can't be is not taken over";
    EXPECT_FALSE(SpielstandLesen(fileWith(" 1 \r\n\\a.bmp\r\n"), z));
    EXPECT_EQ(z.InventarLetzter, 1);
    EXPECT_EQ(z.Inventar[0], "\\a.bmp");
    EXPECT_EQ(z.BösePunkte, 5);
}

TEST(SaveFile, ReadsNumbersGenerouslyAndNamesAsTheyStand) {
    struct Case {
        TextView rest;
        bool good;
        int last;
        int evil;
    };
    const std::vector<Case> cases{
        {"-1\r\n7\r\n", true, -1, 7},
        {"  -1   \r\n   7.6 \r\nwas dahinter steht\r\n", true, -1, 8},
        {" 0 \r\n\r\n-2147483648 \r\n", true, 0, -2147483647 - 1},
        {"quatsch\r\n\\a.bmp\r\n\r\n", true, 0, 0},
        {"-2 \r\n 1 \r\n", false, -1, 0},
        {" 99999999999 \r\n 1 \r\n", false, -1, 0},
        {" 1e300 \r\n 1 \r\n", false, -1, 0},
        {"-1 \r\n 2147483648 \r\n", false, -1, 0},
        {"-1 \r\n 9e999 \r\n", false, -1, 0},
    };
    for (const Case& c : cases) {
        Zustand z;
        EXPECT_EQ(SpielstandLesen(fileWith(c.rest), z), c.good) << c.rest;
        EXPECT_EQ(z.InventarLetzter, c.last) << c.rest;
        EXPECT_EQ(z.BösePunkte, c.evil) << c.rest;
    }
}

TEST(SaveFile, LinesEndWithBothCharacters) {
    Zustand saved;
    playOn(saved);
    Text bytes = SpielstandSchreiben(saved);
    std::erase(bytes, '\r');
    Zustand z;
    EXPECT_FALSE(SpielstandLesen(bytes, z));
    EXPECT_EQ(savedPart(z), savedPart(Zustand()));

    saved.Merker[1] = "EIN\nMERKER";
    ASSERT_TRUE(SpielstandLesen(SpielstandSchreiben(saved), z));
    EXPECT_EQ(z.Merker[1], "EIN\nMERKER") << "a line feed alone is a character";
}

}  // namespace
}  // namespace zentrox::test
