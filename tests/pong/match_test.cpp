// A match as a whole: its phases, its score, its ends.
#include <gtest/gtest.h>

#include "pong_table.h"

namespace zentrox::test {
namespace {

// Puts the ball where one side misses it in the next step.
void miss(Table& table, Seite who) {
    table.set([&](Pongspiel& s) {
        s.ballX = who == Seite::rechts ? 597.0F : 33.0F;
        s.ballDX = who == Seite::rechts ? 5.0F : -5.0F;
        s.ballY = 10;
        s.ballDY = 0;
        s.drall = 0;
        s.gegnerY = s.spielerY = 300;
    });
    table.tick();
}

TEST(PongMatch, GoesThroughItsPhases) {
    Table table;
    EXPECT_EQ(table.s().takte, Takte{.Timer6 = true}) << "serve";
    table.serve();
    EXPECT_EQ(table.heard, (std::vector<Text>{"pong.wav", "pong.wav"})) << "the bounce and the end of the drop";
    EXPECT_EQ(table.s().takte, Takte{.Timer1 = true}) << "play";
    table.set([](Pongspiel& s) { s.tempoBonus = 9; });
    table.heard.clear();
    miss(table, Seite::rechts);
    EXPECT_EQ(table.s().takte, (Takte{.Timer2 = true, .Timer3 = true})) << "fly-out";
    EXPECT_EQ(table.heard, std::vector<Text>{"juhu2.wav"});
    EXPECT_EQ(table.s().tempoBonus, 0) << "back to what the player's points give";
    EXPECT_EQ(table.s().drall, 2);
    table.until([&] { return !table.s().takte.Timer2; }, 20);
    EXPECT_EQ(table.s().takte, Takte{.Timer3 = true}) << "score shown";
    EXPECT_EQ(table.s().ballX, 35) << "who has scored serves";
    EXPECT_EQ(table.s().ballDX, 5);
    table.until([&] { return !table.s().takte.Timer3; }, 94);
    EXPECT_EQ(table.s().takte, Takte{.Timer6 = true}) << "serve";

    table.serve();
    EXPECT_LT(std::abs(table.s().spielerY - 215), 3) << "the paddles have come home";
    EXPECT_LT(std::abs(table.s().gegnerY - 215), 3);
    table.set([](Pongspiel& s) { s.punkteSpieler = 3; });
    miss(table, Seite::links);
    EXPECT_EQ(table.s().tempoBonus, 8) << "twice the player's points";
    table.until([&] { return !table.s().takte.Timer2; }, 20);
    EXPECT_EQ(table.s().ballX, 595);
    EXPECT_EQ(table.s().ballDX, -5);
    EXPECT_EQ(table.s().drall, 0);
}

TEST(PongMatch, EndsAtElevenWithTwoAhead) {
    struct Case {
        int mine, other;
        bool ends;
    };
    for (const Seite scorer : {Seite::links, Seite::rechts})
        for (const Case& c : {Case{9, 0, false}, Case{10, 0, true}, Case{10, 10, false}, Case{10, 9, true},
                              Case{11, 10, true}, Case{20, 20, false}}) {
            Table table;
            table.serve();
            table.set([&](Pongspiel& s) {
                (scorer == Seite::links ? s.punkteGegner : s.punkteSpieler) = c.mine;
                (scorer == Seite::links ? s.punkteSpieler : s.punkteGegner) = c.other;
            });
            table.heard.clear();
            miss(table, scorer == Seite::links ? Seite::rechts : Seite::links);
            const bool player = scorer == Seite::rechts;
            EXPECT_EQ(table.s().spielEnde, c.ends) << c.mine + 1 << ":" << c.other;
            EXPECT_EQ(table.s().gesiegt, c.ends && player);
            if (!c.ends) continue;
            EXPECT_EQ(table.s().takte, player ? Takte{.Timer5 = true} : Takte{.Timer4 = true});
            EXPECT_EQ(table.s().titel,
                      player ? " Freu dich nicht! Das war nur Glück."_t : " Wie kann man nur so schlecht sein?"_t);
            EXPECT_EQ(table.heard, player ? (std::vector<Text>{"sisa1.wav", "dumm.wav"})
                                          : (std::vector<Text>{"juhu2.wav", "juhu.wav"}));
        }
}

TEST(PongMatch, StaysOverWhenTheBallLeavesInTheLastStep) {
    Table table;
    table.serve();
    table.set(
        [](Pongspiel& s) { s.ballX = 630, s.ballDX = 24, s.ballY = 10, s.spielerY = 300, s.punkteGegner = 10; });
    for (int i = 0; i < 400; ++i) table.tick();
    EXPECT_EQ(table.s().takte, Takte{.Timer4 = true});
}

TEST(PongMatch, TakesACreepingBallOffTheField) {
    Table table;
    table.serve();
    miss(table, Seite::links);
    table.set([](Pongspiel& s) { s.ballDX = -0.01F, s.tempoBonus = 0; });
    table.until([&] { return table.s().takte.Timer6; }, 95);
    EXPECT_EQ(table.s().takte, Takte{.Timer6 = true});
    EXPECT_EQ(table.s().ballX, 595);
}

// Past the paddle's line and out of the field in one step: nobody has missed it.
TEST(PongMatch, ServesABallAnewThatIsOutInOneStep) {
    for (const bool right : {true, false}) {
        Table table;
        table.serve();
        table.set([&](Pongspiel& s) {
            s.ballX = right ? 590.0F : 40.0F, s.ballDX = right ? 60.0F : -60.0F, s.ballY = 215, s.drall = 1;
        });
        table.tick();
        EXPECT_EQ(table.s().ballX, right ? 35 : 595);
        EXPECT_EQ(table.s().ballDX, right ? 5 : -5);
        EXPECT_EQ(table.s().drall, right ? 1 : 0);
        EXPECT_EQ(table.s().takte, (Takte{.Timer1 = right, .Timer3 = true})) << "on the right, play goes on";
        EXPECT_EQ(table.score(), (std::array<std::int32_t, 2>{0, 0}));
        table.until([&] { return table.s().takte.Timer6; }, 94);
        table.until([&] { return table.s().takte == Takte{.Timer1 = true}; }, 1000);
    }
}

TEST(PongMatch, BeginsAnewFromEveryPhase) {
    const auto play = [](Table& t) { t.serve(); };
    const auto flyOut = [&](Table& t) { t.serve(), miss(t, Seite::rechts); };
    const auto score = [&](Table& t) { flyOut(t), t.until([&] { return !t.s().takte.Timer2; }, 30); };
    const auto second = [&](Table& t) { score(t), t.until([&] { return t.s().takte.Timer6; }, 100); };
    const auto over = [&](Table& t) {
        t.serve();
        t.set([](Pongspiel& s) { s.punkteGegner = 10; });
        miss(t, Seite::rechts);
    };
    const auto paused = [&](Table& t) {
        t.serve();
        t.held = {'P'};
        t.tick();
        t.held.clear();
    };
    const std::vector<std::function<void(Table&)>> phases{[](Table&) {}, play, flyOut, score, second, over, paused};
    for (std::size_t i = 0; i < phases.size(); ++i) {
        Table table;
        phases[i](table);
        const float flying = table.s().ballDX;
        table.start();
        const Pongspiel& s = table.s();
        EXPECT_EQ(s.takte, Takte{.Timer6 = true}) << i;
        EXPECT_EQ(s.tempoGrenze, 100 - 5 * static_cast<int>(flying)) << i;
        EXPECT_EQ(table.score(), (std::array<std::int32_t, 2>{0, 0})) << i;
        EXPECT_EQ(table.s().titel, " Du hast keine Chance!!!   'p'=Pause") << i;
        EXPECT_TRUE(s.ballX == 35 && s.ballY == 215 && s.ballDX == 5 && s.ballDY == 0 && s.drall == 2) << i;
        EXPECT_TRUE(!s.spielEnde && !s.pause && s.tempoBonus == 1) << i;
        table.serve();
        table.tick();
        EXPECT_GT(table.s().ballX, 35) << i;
    }
}

TEST(PongMatch, PausesAndGoesOn) {
    Table table;
    table.serve();
    table.held = {'P', key::up};
    table.tick();
    const Pongspiel before = table.s();
    EXPECT_NE(before.ballX, 35) << "the key counts from the next tick on";
    table.held = {key::up, key::down};
    for (int i = 0; i < 10; ++i) table.tick();
    EXPECT_EQ(table.s().ballX, before.ballX);
    EXPECT_EQ(table.s().spielerY, before.spielerY);
    EXPECT_EQ(table.s().titel, "     !Pause!    'O' drücken, um weiter zu spielen."_t);
    table.held = {'O'};
    table.tick();
    EXPECT_GT(table.s().ballX, before.ballX);
    EXPECT_EQ(table.s().titel, "Du hast keine Chance!!!   'p'=Pause");
    table.held = {'O', 'P'};
    const float x = table.s().ballX;
    for (int i = 0; i < 4; ++i) table.tick();
    EXPECT_NEAR(table.s().ballX, x + 4 * 5.2F, 0.01) << "both together: the game runs on";
    EXPECT_TRUE(table.s().pause);
}

TEST(PongMatch, IsLostByWhoNeverMovesAndWonByWhoBendsTheBall) {
    Table idle;
    idle.until([&] { return idle.s().spielEnde; });
    EXPECT_FALSE(idle.s().gesiegt);
    EXPECT_EQ(idle.score(), (std::array<std::int32_t, 2>{11, 0}));

    Table played;
    const Swinger player;
    for (int i = 0; i < 40'000 && !played.s().spielEnde; ++i) {
        player.hold(played);
        played.tick();
    }
    EXPECT_TRUE(played.s().gesiegt);
    EXPECT_EQ(played.score()[1], 11);
}

}  // namespace
}  // namespace zentrox::test
