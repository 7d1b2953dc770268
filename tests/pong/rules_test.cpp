// The ball and the paddles by numbers. Expected values were reckoned apart from this program, from the formulas
// alone, in double precision with each field rounded to single.
#include <gtest/gtest.h>

#include "platform/values/random.h"
#include "pong_table.h"

namespace zentrox::test {
namespace {

struct Ball {
    float x, y, dx, dy, drall;
    int bonus;
};

void expectBall(const Pongspiel& s, const Ball& b, const char* what) {
    constexpr float near = 0.001F;
    EXPECT_NEAR(s.ballX, b.x, near) << what;
    EXPECT_NEAR(s.ballY, b.y, near) << what;
    EXPECT_NEAR(s.ballDX, b.dx, near) << what;
    EXPECT_NEAR(s.ballDY, b.dy, near) << what;
    EXPECT_NEAR(s.drall, b.drall, near) << what;
    EXPECT_EQ(s.tempoBonus, b.bonus) << what;
}

TEST(PongRules, PlayARallyThroughPaddlesAndWalls) {
    struct Row {
        int tick;
        Ball ball;
        float gegnerY, spielerY, tastenDauer;
        const char* sound;
    };
    const std::vector<Row> rows{
        {109, {589.81775F, 77.67098F, -4.78225F, 1.45947F, -4.90257F, 2}, 215, 38.383F, -40, "pong.wav"},
        {196, {135.02892F, 437.03387F, -8.71525F, -6.03906F, -3.28966F, 2}, 355, -1.598F, 0, "wand.wav"},
        {209, {40.18258F, 401.01001F, 4.58258F, -2, 0, 3}, 395, -1.598F, 0, "pong.wav"},
        {318, {589.20056F, 184.64816F, -4.99946F, -0.07376F, 4.49715F, 4}, 395, 150.309F, 36, "pong.wav"},
        {393, {151.61386F, 2.27491F, -7.62665F, 4.20664F, 2.10199F, 4}, 279, 156.340F, 0, "wand.wav"},
    };
    Table table;
    table.serve();
    // The glide has left the paddles where they were: they stand at the height of the serve already.
    ASSERT_EQ(table.s().spielerY, 215);
    auto row = rows.begin();
    for (int tick = 1; tick < 408; ++tick) {
        table.held.clear();
        if (tick >= 70 && tick <= 120) table.held = {key::up};
        if (tick >= 283 && tick <= 319) table.held = {key::down};
        table.heard.clear();
        table.tick();
        if (table.heard.empty()) continue;
        ASSERT_NE(row, rows.end()) << "tick " << tick;
        ASSERT_EQ(tick, row->tick);
        const std::string at = "tick " + std::to_string(tick);
        expectBall(table.s(), row->ball, at.c_str());
        EXPECT_NEAR(table.s().gegnerY, row->gegnerY, 0.001) << at;
        EXPECT_NEAR(table.s().spielerY, row->spielerY, 0.001) << at;
        EXPECT_EQ(table.s().tastenDauer, row->tastenDauer) << at;
        EXPECT_EQ(table.heard, std::vector<Text>{row->sound}) << at;
        ++row;
    }
    EXPECT_EQ(row, rows.end());
    table.tick();
    EXPECT_EQ(table.score(), (std::array<std::int32_t, 2>{0, 1})) << "past the computer in step 408";
}

TEST(PongRules, BendAndTurnTheBallInOneStep) {
    struct Case {
        const char* name;
        Ball from;
        float gegnerY, spielerY, tastenDauer;
        Ball to;
    };
    for (const Case& c : {
             Case{"gains at the top",
                  {300, -2, 6, -3, 2, 1},
                  215,
                  215,
                  0,
                  {307.68338F, 3.7331F, 7.48337F, 4.45012F, 0.98891F, 1}},
             Case{"gains at the bottom",
                  {300, 441, -4, 0.5F, -3, 1},
                  215,
                  215,
                  0,
                  {294.90826F, 437.97137F, -4.89173F, -2.67517F, -0.89172F, 1}},
             Case{"loses at the top",
                  {300, -3, -5, -1.5F, -1, 1},
                  215,
                  215,
                  0,
                  {295.15961F, 0.71875F, -4.6404F, 0.77494F, 0.07749F, 1}},
             Case{"gains no more than the limit",
                  {200, 445, -20, 4, -5, 30},
                  215,
                  215,
                  0,
                  {175, 435.69507F, -19, -8.37236F, -4.65131F, 30}},
             Case{"leaves a wall at all", {300, -1, 5, 0, 0, 1}, 215, 215, 0, {305.2F, 0.1F, 5, 0.1F, 0, 1}},
             Case{"takes the curve of a paddle on its way up",
                  {597, 230, 5, -4, 2, 1},
                  215,
                  190,
                  -12,
                  {590.05908F, 228.04855F, -4.5409F, -2.09291F, -2.2084F, 2}},
             Case{"takes no curve of a standing one",
                  {597, 150, 5, 4.2F, 2, 1},
                  215,
                  200,
                  0,
                  {590.15674F, 152.29291F, -4.44326F, 2.29291F, 0, 2}},
             Case{"takes the curve of a paddle on its way down",
                  {600, 160, 5, 0, 2, 1},
                  215,
                  200,
                  7,
                  {589.79419F, 158.51205F, -4.8058F, -1.37995F, 1.68592F, 2}},
             Case{"comes back flat from the computer",
                  {30, 200, -5, 2.4F, 3, 1},
                  190,
                  215,
                  0,
                  {39.98257F, 202, 4.58258F, 2, 0, 2}},
             Case{"meets the paddle's last pixel",
                  {597, 144.1F, 5, 0, 2, 1},
                  215,
                  205,
                  0,
                  {589.98517F, 142.17554F, -4.6148F, -1.92447F, 0, 2}},
             Case{"is as fast as it gets",
                  {30, 200, -5, 0, 2, 100},
                  200,
                  215,
                  0,
                  {60, 200.00732F, 4.99999F, 0.00733F, 0, 100}},
         }) {
        Table table;
        table.serve();
        table.set([&](Pongspiel& s) {
            s.ballX = c.from.x, s.ballY = c.from.y, s.ballDX = c.from.dx, s.ballDY = c.from.dy,
            s.drall = c.from.drall;
            s.tempoBonus = c.from.bonus;
            s.gegnerY = c.gegnerY, s.spielerY = c.spielerY, s.tastenDauer = c.tastenDauer;
        });
        table.tick();
        expectBall(table.s(), c.to, c.name);
    }
}

TEST(PongRules, NeverLetTheBallStand) {
    for (const float dy : {5.0F, -5.0F}) {
        Table table;
        table.serve();
        table.set([&](Pongspiel& s) { s.ballX = 597, s.ballY = 210, s.ballDY = dy; });
        table.tick();
        EXPECT_LT(table.s().ballDX, -2) << "a vertical ball would stay at the line";
        EXPECT_EQ(table.s().ballDY, dy > 0 ? 4.5F : -4.5F);
    }
    Table table;
    table.serve();
    // As after a match that ended at a very fast ball: the limit lies below nothing.
    table.set([](Pongspiel& s) { s.tempoGrenze = -150, s.ballX = 300, s.ballY = -1, s.ballDY = -2, s.drall = 2; });
    for (int i = 0; i < 50; ++i) table.tick();
    EXPECT_GT(table.s().ballDX, 0);
    EXPECT_GT(table.s().ballX, 300);
}

TEST(PongRules, MoveThePaddleFasterTheLongerItIsHeld) {
    Table table;
    table.serve();
    table.held = {key::down};
    table.tick();
    EXPECT_EQ(table.s().spielerY, 217.5F);
    table.tick();
    EXPECT_NEAR(table.s().spielerY, 220 + 25 * std::sin(1.0 / 254), 0.001);
    EXPECT_EQ(table.s().tastenDauer, 2);
    table.held = {key::up};
    const float before = table.s().spielerY;
    table.tick();
    EXPECT_EQ(table.s().spielerY, before - 2.5F) << "turning begins anew";
    EXPECT_EQ(table.s().tastenDauer, 0) << "the other key was let go in the same tick";
    table.held.clear();
    table.tick();

    table.held = {key::up, key::down};
    table.tick();
    table.tick();
    EXPECT_EQ(table.s().spielerY, before - 2.5F) << "both keys cancel out";
    EXPECT_EQ(table.s().tastenDauer, 1);

    table.set([](Pongspiel& s) { s.spielerY = -3, s.tastenDauer = -20; });
    table.held = {key::up};
    table.tick();
    EXPECT_EQ(table.s().spielerY, -3) << "at the end of its range it stands";
    EXPECT_EQ(table.s().tastenDauer, 0);
}

TEST(PongRules, LetTheComputerLookOnlyWhereItLooks) {
    struct Case {
        float x, y, dx;
        int points;
        float to;
    };
    for (const Case& c : {Case{300, 100, -5, 0, 211}, Case{300, 300, -5, 10, 221.5F}, Case{300, 215, -5, 3, 216},
                          Case{340, 100, -5, 0, 215}, Case{300, 100, 5, 0, 215}, Case{41, 100, -5, 0, 215}}) {
        Table table;
        table.serve();
        table.set([&](Pongspiel& s) {
            s.ballX = c.x, s.ballY = c.y, s.ballDX = c.dx, s.drall = 0, s.punkteSpieler = c.points;
        });
        table.tick();
        EXPECT_EQ(table.s().gegnerY, c.to) << c.x << ", " << c.y;
    }
}

TEST(PongRules, StayFiniteWhateverIsPressed) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        Random random(seed);
        Table table;
        for (int i = 0; i < 20'000; ++i) {
            if (random.below(12) == 0) {
                table.held.clear();
                for (const int code : {int{key::up}, int{key::down}})
                    if (random.below(2) == 0) table.held.insert(code);
            }
            if (random.below(1500) == 0) table.start();
            table.tick();
            const Pongspiel& s = table.s();
            ASSERT_TRUE(std::isfinite(s.ballX) && std::isfinite(s.ballY) && std::isfinite(s.drall))
                << seed << " " << i;
            ASSERT_TRUE(s.spielerY > -30 && s.spielerY < 470) << s.spielerY;
            ASSERT_TRUE(s.gegnerY > -60 && s.gegnerY < 500) << s.gegnerY;
            ASSERT_NE(s.ballDX, 0);
            const int running = s.takte.Timer1 + s.takte.Timer2 + s.takte.Timer4 + s.takte.Timer5 + s.takte.Timer6;
            ASSERT_TRUE(running == 1 || (running == 0 && s.takte.Timer3)) << seed << " " << i;
        }
    }
}

}  // namespace
}  // namespace zentrox::test
