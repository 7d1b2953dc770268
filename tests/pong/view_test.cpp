#include <gtest/gtest.h>

#include "games/pong/pongbild.h"

#include "engine/state/felder.h"
#include "pong_table.h"
#include "tests/support/fake_fonts.h"

namespace zentrox::test {
namespace {

constexpr Colour ball{0x202020};
constexpr Colour left{0xFF0000};
constexpr Colour right{0x00FF00};

Pongbilder pictures() {
    const auto plain = [](int w, int h, Colour colour) { return Bitmap({w, h}, colour); };
    return {.Image1 = {plain(10, 10, ball), plain(10, 10, Colour{0x100000}), plain(10, 10, Colour{0x080000}),
                       plain(10, 10, Colour{0x040000})},
            .Image4 = plain(14, 100, left),
            .Image5 = plain(14, 100, right),
            .Image7 = {plain(10, 10, Colour{0x0000FF}), plain(10, 10, Colour{0x0000FE})},
            .Image8 = plain(300, 50, Colour{0xFFFF00}),
            .Image9 = plain(300, 50, Colour{0x00FFFF})};
}

struct Field {
    FakeFonts fonts;
    Surface surface{fonts, {641, 449}};
    Pongbild view{surface, pictures()};
    Table table{&view};

    // The smallest rectangle that holds all that is not black, but for the paddles at rest; empty if there is
    // nothing.
    Rect litter() const {
        const Rect leftPaddle{17, Runden(table.s().gegnerY - 50), 14, 100};
        const Rect rightPaddle{610, Runden(table.s().spielerY - 50), 14, 100};
        const Bitmap& image = surface.image();
        Rect found;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.row(y)[x] != 0 && !leftPaddle.contains({x, y}) && !rightPaddle.contains({x, y}))
                    found = united(found, {x, y, 1, 1});
        return found;
    }
};

testing::AssertionResult empty(const Rect& area) {
    if (area.empty()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << area.x << ", " << area.y << " to " << area.right() << ", "
                                       << area.bottom();
}

TEST(PongView, LeavesTheFieldBlackAtEachServeOfALongMatch) {
    Field f;
    const Swinger player;
    int serves = 0;
    for (int i = 0; i < 40'000 && !f.table.s().spielEnde; ++i) {
        const bool served = f.table.s().takte.Timer6;
        player.hold(f.table);
        f.table.tick();
        if (!served || !f.table.s().takte.Timer1) continue;
        ++serves;
        EXPECT_TRUE(empty(f.litter())) << "serve " << serves << " tick " << i;
    }
    EXPECT_TRUE(f.table.s().spielEnde);
    EXPECT_GE(serves, 11);
}

TEST(PongView, ShowsNothingButBallAndTrailWhenAHitIsOver) {
    struct Case {
        float x, y, dx, gegnerY, spielerY;
    };
    // Hits in the middle, at the rim next to a wall, and at full speed.
    for (const Case& c : {Case{33, 210, -5, 210, 215}, Case{15, 436, -15, 388, 358}, Case{597, 3, 5, 215, 40},
                          Case{618, 430, 24, 215, 400}}) {
        Field f;
        f.table.serve();
        f.table.set([&](Pongspiel& s) { s.ballX = c.x + 60 * (c.dx < 0 ? 1.0F : -1.0F), s.ballDX = 0; });
        for (int i = 0; i < 4; ++i) f.table.tick();
        f.table.set([&](Pongspiel& s) {
            s.ballX = c.x, s.ballY = c.y, s.ballDX = c.dx, s.gegnerY = c.gegnerY, s.spielerY = c.spielerY,
            s.drall = 0;
        });
        f.surface.clear();
        f.surface.copy(pictures().Image1[0], {0, 0, 10, 10}, {Runden(c.x), Runden(c.y)}, Op::bitOr);
        for (int i = 0; i < 23; ++i) f.table.tick();
        const Rect near{Runden(f.table.s().ballX - 60), Runden(f.table.s().ballY - 60), 120, 120};
        const Rect litter = f.litter();
        EXPECT_EQ(litter, intersection(litter, near)) << c.x << ", " << c.y;
    }
}

TEST(PongView, PunchesAndSpraysSparksAtAHit) {
    Field f;
    f.table.serve();
    f.table.tick();
    EXPECT_EQ(f.surface.pixel({26, 214}), 0)
        << "sparks are taken off after the paddle was painted, and cut into it";
    EXPECT_EQ(f.surface.pixel({24, 214}), std::int32_t(left.rgb));
    for (int i = 0; i < 3; ++i) f.table.tick();
    EXPECT_EQ(f.surface.pixel({17 + 7, 215}), std::int32_t(left.rgb)) << "eight pixels forward after four steps";
    EXPECT_EQ(f.surface.pixel({17 + 5, 215}), 0);
    int sparks = 0;
    for (int y = 0; y < 449; ++y)
        for (int x = 0; x < 80; ++x) sparks += f.surface.pixel({x, y}) == 0xFF;
    EXPECT_GT(sparks, 60);
    for (int i = 0; i < 17; ++i) f.table.tick();
    EXPECT_EQ(f.surface.pixel({17, 215}), std::int32_t(left.rgb));
    EXPECT_EQ(f.surface.pixel({17 + 14, 215}), 0);
}

TEST(PongView, ColoursTheScoreByTheLead) {
    struct Case {
        int lead;
        std::uint32_t colour;
        float points;
    };
    Field f;
    f.table.serve();
    // In this order each row also shows what it leaves as it was.
    for (const Case& c :
         {Case{4, 0xFF0000, 22}, Case{5, 0xFF0000, 26}, Case{6, 0xFF0000, 26}, Case{3, 0xDB2528, 26},
          Case{4, 0xFF0000, 22}, Case{-3, 0x25DB28, 22}, Case{-5, 0x25DB28, 26}, Case{-4, 0x00FF00, 22}}) {
        Pongspiel s;
        s.punkteGegner = 7 + c.lead;
        s.punkteSpieler = 7;
        const Pongtick point{.Punkt = true, .Flug = Ballflug{.von = {300, 400}, .nach = {300, 400}}};
        f.view.Timer1_Timer({s, point, s});
        EXPECT_EQ(f.surface.foreground.rgb, c.colour) << c.lead;
        EXPECT_EQ(f.surface.font.points, c.points) << c.lead;
        const int at = Runden(320 - 2 * c.points);
        const int top = Runden(220 - 2 * c.points);
        const int digit = at + FakeFont::advance + 1;
        EXPECT_EQ(f.surface.pixel({digit, top + 5}), std::int32_t(c.colour)) << "a blank, then the number";
        f.view.Timer3_Timer({s, {}, s});
        EXPECT_EQ(f.surface.pixel({digit, top + 5}), 0);
    }
    EXPECT_TRUE(f.surface.shows(" 3 : 7"));
}

TEST(PongView, TurnsThePictureAtTheEndWithoutLeavingATrace) {
    for (const Seite winner : {Seite::links, Seite::rechts}) {
        Field f;
        f.table.serve();
        f.table.tick();
        f.surface.clear();
        f.table.set(
            [&](Pongspiel& s) { s.takte = {.Timer4 = winner == Seite::links, .Timer5 = winner == Seite::rechts}; });
        int widest = 0;
        int narrowest = 640;
        for (int i = 0; i < 400; ++i) {
            f.table.tick();
            const Rect seen = f.litter();
            ASSERT_LE(seen.h, 50) << i;
            ASSERT_LE(seen.w, 300) << i;
            widest = std::max(widest, seen.w);
            narrowest = std::min(narrowest, seen.w);
            const std::int32_t colour = f.surface.pixel({seen.x, seen.y});
            ASSERT_EQ(colour, winner == Seite::links ? 0xFFFF00 : 0x00FFFF) << i;
        }
        EXPECT_EQ(widest, 300);
        EXPECT_LT(narrowest, 16);
    }
}

}  // namespace
}  // namespace zentrox::test
