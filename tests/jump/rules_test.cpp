// The rules of Jump, played without a surface.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/jump/player.h"

namespace zentrox {
namespace {

using test::Keys;
using test::pressed;

// Column 30 is a ledge whose top lies in row 6, and right of it is a pit.
constexpr float ledgeX = 30 * 48;
constexpr float ledgeY = 6 * 48 - 96;
// Columns 88 to 90 are a pit without anything above it.
constexpr float pitX = 89 * 48;

class Rules : public ::testing::Test {
protected:
    Random chance{1};
    Jumpspiel game;
    std::vector<TextView> heard;

    void SetUp() override {
        for (Gegner& g : game.Gegner) g.Lebt = false;
    }
    void tick(const Keys& keys = {}, int times = 1) {
        for (int i = 0; i < times; ++i) {
            const auto sounds = game.Tick(pressed(keys), chance).Klänge;
            heard.insert(heard.end(), sounds.begin(), sounds.end());
        }
    }
    void standAt(float x, float y) {
        game.SpielerX = x;
        game.SpielerY = y;
        game.SpielerVY = 0;
        game.AmBoden = 1;
        game.BodenNachlauf = 5;
        tick();
    }
    // A falling body over a walking enemy whose top is at y 336.
    Gegner& overWalker(float feet, float speed) {
        Gegner& g = game.Gegner[0];
        g.Lebt = true;
        g.X = 600;
        game.SpielerX = 610;
        game.SpielerY = feet - 96;
        game.SpielerVY = speed;
        return g;
    }
    // Ticks until the game ends, at most 1000.
    int ticksToTheEnd() {
        int ticks = 0;
        while (game.Ende == 0 && ticks < 1000) {
            tick();
            ++ticks;
        }
        return ticks;
    }
};

TEST_F(Rules, TheFigureFallsInAndLands) {
    tick({}, 60);
    EXPECT_EQ(game.SpielerX, 0);
    EXPECT_EQ(game.SpielerY, 7 * 48 - 96);
    EXPECT_EQ(heard.front(), "pop.wav");
}

TEST_F(Rules, OnTheGroundLeftWinsOverRightAndInTheAirTheyCancel) {
    standAt(ledgeX + 24, ledgeY);
    tick({key::left, key::right});
    EXPECT_EQ(game.SpielerVX, -3);
    game.SpielerX = pitX;
    game.SpielerY = 100;
    game.AmBoden = 0;
    game.BodenNachlauf = 0;
    game.SpielerVX = 0;
    tick({key::left, key::right});
    EXPECT_EQ(game.SpielerVX, 0);
    tick({key::right});
    EXPECT_EQ(game.SpielerVX, 0.25F);
    tick({key::right});
    EXPECT_NEAR(game.SpielerVX, 0.3, 1e-6);
}

TEST_F(Rules, AJumpFromStandingRisesAsFarAsItShould) {
    standAt(ledgeX, ledgeY);
    tick({key::space});
    float top = game.SpielerY;
    int rise = 0;
    for (float before = top + 1; game.SpielerY < before; ++rise) {
        before = game.SpielerY;
        tick({key::space});
        top = std::min(top, game.SpielerY);
    }
    EXPECT_EQ(ledgeY - top, 115.5F);
    EXPECT_GE(rise, 21);
}

TEST_F(Rules, AHeldJumpKeyJumpsOnceAndCountsAsLetGoOnlyBelow128) {
    standAt(ledgeX, ledgeY);
    tick({key::space}, 100);
    EXPECT_EQ(std::count(heard.begin(), heard.end(), TextView("boing.wav")), 1);
    Tasten keys{};
    keys[key::space] = 127;  // held and let go at once: it jumps, and does not hold the next jump back
    game.Tick(keys, chance);
    EXPECT_FALSE(game.SprungGehalten);
    EXPECT_EQ(game.Tick(keys, chance).Klänge, std::vector<TextView>{"boing.wav"});
}

TEST_F(Rules, BesideAnEdgeAJumpWorksForFiveTicksMore) {
    for (int late = 1; late <= 6; ++late) {
        game = {};
        SetUp();
        standAt(ledgeX + 46, ledgeY);
        tick({key::right});  // the last one with floor under it
        for (int i = 1; i < late; ++i) tick({key::right});
        heard.clear();
        tick({key::right, key::space});
        EXPECT_EQ(heard.size(), late <= 5 ? 1U : 0U) << late;
    }
}

TEST_F(Rules, AStompBurstsTheEnemyThrowsTheFigureUpAndLetsItJumpInTheAir) {
    const Gegner& g = overWalker(330, 8);
    tick();
    EXPECT_FALSE(g.Lebt);
    EXPECT_EQ(heard, std::vector<TextView>{"drip.wav"});
    EXPECT_EQ(game.SpielerVY, -4.25F);
    EXPECT_EQ(game.TotZaehler, 0);
    EXPECT_EQ(game.Funken.PartikelMax(), 5 * 36 - 1);
    tick({key::space});
    EXPECT_EQ(game.SpielerVY, -11);
}

TEST_F(Rules, AFallThroughTheZoneAnEnemyFromTheSideAndASunkenOneAreHits) {
    const Gegner& g = overWalker(335, 19.6F);  // 355.1: one pixel and a bit below the zone
    tick();
    EXPECT_TRUE(g.Lebt);
    EXPECT_EQ(game.TotZaehler, 2);
    EXPECT_EQ(heard, std::vector<TextView>{"e_laugh.wav"});
    EXPECT_EQ(game.SpielerVY, -5);

    for (const float feet : {353.5F, 353.6F}) {  // at the lower end of the zone, and past it
        game = {};
        SetUp();
        const Gegner& edge = overWalker(feet, 0);
        tick();
        EXPECT_EQ(edge.Lebt, feet > 353.5F) << feet;
    }

    for (const float above : {0.0F, 0.5F}) {  // what sinks has a zone of a single line
        game = {};
        SetUp();
        Gegner& s = game.Gegner[3];
        s.Lebt = true;
        s.Y = 96;
        game.Hubwinkel = -0.021;  // its sine is 0 in this tick
        game.SpielerX = s.X;
        game.SpielerY = above - 0.5F;
        game.SpielerVY = 0;
        tick();
        EXPECT_EQ(s.Lebt, above != 0) << above;
    }
}

TEST_F(Rules, AnEnemyThatOnlyTouchesFromTheSideDoesNoHarm) {
    Gegner& g = overWalker(384, 0);
    game.SpielerX = g.X - 48 - 3;
    game.AmBoden = 1;
    tick({});
    EXPECT_EQ(g.X, 597) << "it walks to the left, up to the figure";
    EXPECT_EQ(game.SpielerX + 48, 597);
    EXPECT_EQ(game.TotZaehler, 0);
    tick({});
    EXPECT_GT(game.TotZaehler, 0);
}

TEST_F(Rules, ThePitThrowsTheFigureUpAndEndsTheGame53TicksAfterItHasGone) {
    game.SpielerX = pitX;
    game.SpielerY = 330;
    game.SpielerVY = 12;
    game.AmBoden = 0;
    tick();
    EXPECT_EQ(game.SpielerVY, -22);
    EXPECT_EQ(heard, std::vector<TextView>{"e_laugh.wav"});
    int below = 0;
    while (game.Ende == 0) {
        tick({key::left, key::space});
        below += game.SpielerY > 432 ? 1 : 0;
        ASSERT_LT(below, 100);
    }
    EXPECT_EQ(below, 53);
    EXPECT_EQ(game.Ergebnis, false);
    EXPECT_EQ(heard.size(), 1U);
}

TEST_F(Rules, EscapeGivesUpButNotDuringTheCelebration) {
    standAt(ledgeX, ledgeY);
    tick({key::escape});
    EXPECT_EQ(game.TotZaehler, 1);
    ticksToTheEnd();
    EXPECT_EQ(game.Ergebnis, false);

    game = {};
    SetUp();
    game.SpielerX = 8304;
    game.SpielerY = 288;
    game.SiegZaehler = 1;
    game.AmBoden = 1;
    tick({key::escape, key::left}, 10);
    EXPECT_EQ(game.TotZaehler, 0);
    EXPECT_EQ(game.SpielerX, 8304);
}

TEST_F(Rules, OnlyTheExactPlaceIsTheGoal) {
    standAt(8290, 288);
    EXPECT_EQ(game.SiegZaehler, 0);
    for (int i = 0; i < 20 && game.SiegZaehler == 0; ++i) tick({key::right});
    EXPECT_EQ(game.SpielerX, 8304);
    EXPECT_EQ(game.SiegZaehler, 1);
    EXPECT_FALSE(game.Ergebnis.has_value());
    EXPECT_EQ(ticksToTheEnd(), 500);
    EXPECT_EQ(game.Ergebnis, true);
}

TEST_F(Rules, BetweenGroundAndPitNothingIsBelowTheLevel) {
    game.SpielerX = pitX;
    game.SpielerY = 335.7F - 0.5F;
    game.SpielerVY = 0;
    game.AmBoden = 0;
    game.BodenNachlauf = 0;
    tick();
    EXPECT_GT(game.SpielerY, 335.5F);
    EXPECT_LT(game.SpielerY, 336);
    EXPECT_EQ(game.TotZaehler, 0);
    EXPECT_EQ(game.AmBoden, 0);
}

TEST_F(Rules, WalkersTurnAtWallsAndEndsAndCrossGaps) {
    Gegner& g = game.Gegner[0];
    g.Lebt = true;
    g.X = 1300;
    g.VX = 3;
    game.SpielerX = 5000;
    game.SpielerY = -5000;
    tick({}, 60);
    EXPECT_LT(g.VX, 0) << "the ledge at column 29 turns it";
    EXPECT_EQ(g.Blick, 0);
    g.X = 35 * 48;  // over the pit of columns 31 to 38
    g.VX = 3;
    tick();
    EXPECT_EQ(g.X, 35 * 48 + 3);
    g.X = 2;
    g.Y = -60;
    g.VX = -3;
    tick();
    EXPECT_EQ(g.VX, 3);
    EXPECT_EQ(g.X, 2) << "it stands still while it turns";
    EXPECT_EQ(g.Blick, 96);
}

TEST_F(Rules, WhatSinksKeepsItsFootAndComesBack) {
    Gegner& g = game.Gegner[3];
    g.Lebt = true;
    game.SpielerX = g.X - 25;
    float lowest = 0;
    for (int i = 0; i < 300; ++i) {
        tick();
        game.SpielerY = -1000;
        game.SpielerVY = 0;
        lowest = std::max(lowest, g.Hub);
        EXPECT_NEAR(g.Y - g.Hub, 96, 0.01);
    }
    EXPECT_NEAR(lowest, 95, 1);
    EXPECT_NEAR(g.Hub, 0, 1);
    EXPECT_EQ(g.Blick, 0);
    game.SpielerX = g.X - 24;
    tick();
    EXPECT_EQ(g.Blick, 96);
}

TEST(JumpPlayer, WinsByLookingAtTheLevel) {
    const auto keys = test::Player().plan();
    ASSERT_FALSE(keys.empty());
    Random chance(99);
    Jumpspiel game;
    for (const Keys& k : keys) game.Tick(pressed(k), chance);
    for (int i = 0; i < 500; ++i) game.Tick({}, chance);
    EXPECT_EQ(game.Ergebnis, true);
    EXPECT_NE(game.Ende, 0);
}

// Wild keys, also all at once, in many games: nothing leaves the level, and every game that dies ends.
TEST(JumpPlayer, WildPlayersStayInTheLevel) {
    constexpr std::array codes{key::left, key::right, key::down, key::space, key::escape};
    int ended = 0;
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        Random chance(seed);
        Jumpspiel game;
        Tasten keys{};
        for (int i = 0; i < 700 && game.Ende == 0; ++i) {
            if (chance.below(10) == 0)
                for (const int code : codes)
                    keys[static_cast<std::size_t>(code)] = chance.below(code == key::escape  ? 40
                                                                        : code == key::right ? 2
                                                                                             : 4) == 0
                                                               ? 0
                                                               : 128;
            keys[key::escape] = chance.below(600) == 0 ? 128 : 0;
            if (seed == 60) keys.fill(255);
            game.Tick(keys, chance);
            ASSERT_GE(game.SpielerX, 0);
            ASSERT_LE(game.SpielerX, 8304);
            ASSERT_EQ(game.Sicht.ScrollX, std::floor(game.Sicht.ScrollX));
            ASSERT_GE(game.Sicht.ScrollX, 0);
            ASSERT_LT(game.Sicht.ScrollX, 7728);
        }
        if (game.Ende != 0) {
            ++ended;
            EXPECT_EQ(game.Ergebnis, false);
        }
    }
    EXPECT_GT(ended, 10);
}

TEST(JumpView, StepsAreSplitAtColumnsAndStopAtTheEnds) {
    const auto moved = [](float from, int d) {
        Sicht view;
        view.ScrollX = from;
        Scrollschritte made;
        view.Scroll(d, made);
        std::string steps;
        for (const Scrollschritt& s : made) steps += std::to_string(s.d) + " ";
        return steps + "-> " + std::to_string(static_cast<int>(view.ScrollX));
    };
    EXPECT_EQ(moved(100, 0), "-> 100");
    EXPECT_EQ(moved(2, -3), "-2 -> 0");
    EXPECT_EQ(moved(0, -3), "-> 0");
    EXPECT_EQ(moved(49, -3), "-1 -2 -> 46");
    EXPECT_EQ(moved(48, -3), "-3 -> 45");
    EXPECT_EQ(moved(51, -3), "-3 -> 48");
    EXPECT_EQ(moved(47, 3), "1 2 -> 50");
    EXPECT_EQ(moved(45, 3), "3 -> 48");
    EXPECT_EQ(moved(7724, 3), "3 -> 7727");
    EXPECT_EQ(moved(7725, 3), "-> 7725");
    EXPECT_EQ(moved(7670, 70), "10 -> 7680");
}

}  // namespace
}  // namespace zentrox
