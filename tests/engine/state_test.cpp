#include <gtest/gtest.h>

#include <limits>

#include "engine/state/felder.h"
#include "engine/state/merker.h"
#include "engine/state/warten.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

TEST(Felder, FieldsAreCountedFromTheLeft) {
    struct Case {
        TextView text, trenner;
        int n;
        TextView erwartet;
    };
    for (const Case& c : {
             Case{"a,b,c", ",", 1, "a"},
             Case{"a,b,c", ",", 2, "b"},
             Case{"a,b,c", ",", 3, "c"},
             Case{"a,b", ",", 3, " "},
             Case{"a,b,", ",", 3, ""},
             Case{"a,b,", ",", 4, " "},
             Case{"", ",", 1, ""},
             Case{"", ",", 2, " "},
             Case{",x", ",", 1, ""},
             Case{" a , b ", ",", 2, " b "},
             Case{"a|b,c", "|", 2, "b,c"},
             Case{"a::b::c", "::", 3, "c"},
             Case{"a,b", ",", 0, " "},
             Case{"a,b", ",", -3, " "},
             Case{"a,b", "", 1, "a,b"},
         })
        EXPECT_EQ(Feld(c.text, c.trenner, c.n), c.erwartet) << c.text << " field " << c.n;
}

TEST(Felder, FileNameAndBlanks) {
    EXPECT_EQ(Dateiname("tuer.bmp"), "tuer.bmp");
    EXPECT_EQ(Dateiname("c:\\spiel\\tuer.bmp"), "tuer.bmp");
    EXPECT_EQ(Dateiname("c:\\spiel\\"), "");
    EXPECT_EQ(Trim("  a b "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim("\ta "), "\ta");
}

TEST(Felder, NumbersAtTheFrontOfTexts) {
    struct Case {
        TextView text;
        double erwartet;
    };
    const double withoutEnd = std::numeric_limits<double>::infinity();
    for (const Case& c : {
             Case{"12", 12},      Case{" 2", 2},
             Case{"-3.5x", -3.5}, Case{"+7", 7},
             Case{".5", 0.5},     Case{"1,5", 1},
             Case{"", 0},         Case{" ", 0},
             Case{"zwei", 0},     Case{"inf", 0},
             Case{"nan", 0},      Case{"-", 0},
             Case{"+-4", 0},      Case{"1e3", 1000},
             Case{"1e", 1},       Case{"0x10", 0},
             Case{"--1", 0},      Case{".", 0},
             Case{"1 2", 1},      Case{"1e999", withoutEnd},
             Case{"1e-999", 0},   Case{"-1e999", -withoutEnd},
         })
        EXPECT_EQ(Val(c.text), c.erwartet) << c.text;
    EXPECT_EQ(Zahl(" 1.5 "), 1.5);
    EXPECT_FALSE(Zahl("1x"));
    EXPECT_FALSE(Zahl(""));
}

TEST(Felder, TiesRoundToTheEvenNumber) {
    struct Case {
        double wert;
        std::int32_t erwartet;
    };
    for (const Case& c :
         {Case{0.5, 0}, Case{1.5, 2}, Case{2.5, 2}, Case{-0.5, 0}, Case{-1.5, -2}, Case{2.4999, 2},
          Case{1e20, 2147483647}, Case{-1e20, -2147483647 - 1}, Case{std::numeric_limits<double>::quiet_NaN(), 0}})
        EXPECT_EQ(Runden(c.wert), c.erwartet) << c.wert;
}

TEST(Merker, AFlagStandsOnceAndItsNameIsTrimmedAndCapital) {
    Zustand z;
    MerkerSetzen(z, " tür "_t);
    MerkerSetzen(z, " Tür "_t);
    MerkerSetzen(z, "TÜR"_t);
    EXPECT_EQ(std::count(z.Merker.begin(), z.Merker.end(), Text("TÜR"_t)), 1);
    EXPECT_TRUE(MerkerGesetzt(z, "tür  "_t));
    EXPECT_FALSE(MerkerGesetzt(z, "TÜREN"_t));
    MerkerLöschen(z, "tür"_t);
    EXPECT_FALSE(MerkerGesetzt(z, "TÜR"_t));
    EXPECT_TRUE(MerkerGesetzt(z, ""));
}

TEST(Merker, TheLowestFreeSlotIsTakenUntilNoneIsLeft) {
    Zustand z;
    for (int i = 0; i < MerkerAnzahl; ++i) MerkerSetzen(z, "EIN LANGER MERKER " + std::to_string(i));
    EXPECT_FALSE(MerkerGesetzt(z, ""));
    MerkerSetzen(z, "NEU");
    EXPECT_FALSE(MerkerGesetzt(z, "NEU"));
    MerkerLöschen(z, "EIN LANGER MERKER 7");
    MerkerSetzen(z, "NEU");
    EXPECT_EQ(z.Merker[7], "NEU");
    EXPECT_TRUE(MerkerGesetzt(z, "ein langer merker 1000"));
}

// Names of every length around the steps in which they are compared, each differing in one place.
TEST(Merker, NamesAreToldApartInEveryPlace) {
    for (std::size_t length = 1; length <= 40; ++length) {
        Zustand z;
        const Text name(length, 'A');
        MerkerSetzen(z, name);
        EXPECT_TRUE(MerkerGesetzt(z, name));
        EXPECT_FALSE(MerkerGesetzt(z, name + "A"));
        for (std::size_t i = 0; i < length; ++i) {
            Text other = name;
            other[i] = 'B';
            EXPECT_FALSE(MerkerGesetzt(z, other)) << length << " " << i;
        }
    }
}

class Warten : public ::testing::Test {
protected:
    test::Stage stage;
    test::FakeBackend& backend = stage.backend;
    Platform& platform = stage.platform;
    Zustand z;
};

TEST_F(Warten, FramesFollowEachOtherAtTheirDistance) {
    backend.now = 1000;
    WarteFrame(z, platform, 20);
    EXPECT_EQ(backend.now, 1000) << "the first call of a loop may return at once";
    for (int frame = 1; frame <= 5; ++frame) {
        backend.now += 7;  // the loop's own work
        WarteFrame(z, platform, 20);
        EXPECT_EQ(backend.now, 1000 + 20 * frame);
    }
    backend.now += 50;  // work that takes too long is not made up for
    WarteFrame(z, platform, 20);
    EXPECT_EQ(backend.now, 1150);
    for (const std::int32_t ms : {0, -5}) {
        bool bedient = false;
        backend.then([&] { bedient = true; });
        WarteFrame(z, platform, ms);
        EXPECT_TRUE(bedient) << "the queue is always served once";
        EXPECT_EQ(backend.now, 1150);
    }
}

TEST_F(Warten, TimersRunMeanwhile) {
    int ticks = 0;
    const Timer timer(platform.queue, 30, true, [&] { ++ticks; });
    WarteFrame(z, platform, 100);
    EXPECT_EQ(backend.now, 100);
    EXPECT_EQ(ticks, 3);
}

// The mark is shared: one that returns inside another one's wait moves that one's end.
TEST_F(Warten, OneInsideAnotherMovesItsEnd) {
    Timer tick(platform.queue, 30, true, [&] {
        tick.setEnabled(false);
        WarteFrame(z, platform, 50);
        EXPECT_EQ(backend.now, 50);
    });
    WarteFrame(z, platform, 100);
    EXPECT_EQ(backend.now, 150);
}

TEST_F(Warten, EndsWhenItIsToldSo) {
    bool closed = false;
    const Timer timer(platform.queue, 30, true, [&] { closed = true; });
    WarteFrame(z, platform, 100, [&] { return closed; });
    EXPECT_EQ(backend.now, 30);
    WarteFrame(z, platform, 20, [] { return false; });
    EXPECT_EQ(backend.now, 50) << "the mark is where it ended";
}

TEST_F(Warten, TheMarkSurvivesTheWrappingOfTheClock) {
    for (const Milliseconds wrap : {Milliseconds{1} << 31, Milliseconds{1} << 32}) {
        backend.now = wrap - 10;
        WarteFrame(z, platform, 20);
        WarteFrame(z, platform, 20);
        EXPECT_EQ(backend.now, wrap + 10);
    }
    z.LetzterFrame = 0;
    backend.now = (Milliseconds{1} << 31) + 5;  // a machine that has been on for weeks
    WarteFrame(z, platform, 20);
    EXPECT_EQ(backend.now, (Milliseconds{1} << 31) + 5);
}

TEST_F(Warten, TheKeyboardIsASnapshot) {
    backend.input({.kind = Input::Kind::keyDown, .code = 65});
    platform.queue.yield("test");
    TastaturLesen(z, platform);
    backend.input({.kind = Input::Kind::keyUp, .code = 65});
    platform.queue.yield("test");
    EXPECT_EQ(z.Tastatur[65], 128);
}

}  // namespace
}  // namespace zentrox
