// Letters that are noted: whatever is drawn, the picture is what it is without notes, and what is lifted off it
// makes it whole again.
#include <gtest/gtest.h>

#include "platform/picture/font.h"
#include "platform/sdl/scene.h"
#include "platform/values/random.h"
#include "platform/window/surface.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

constexpr Size area{160, 120};

// Draws the same on a picture with notes and on one without.
class TwoPictures {
public:
    explicit TwoPictures(std::uint64_t seed) : random_(seed) { fonts_[0]->setNotes(true); }

    void draw() {
        const Rect clip{number(60) - 10, number(60) - 10, number(200), number(200)};
        const Rect from{number(160) - 20, number(120) - 20, number(120), number(90)};
        const Point to{number(160) - 20, number(120) - 20};
        const Op op = std::array{Op::plain, Op::plain, Op::bitAnd, Op::bitOr}[static_cast<std::size_t>(number(4))];
        const Colour colour(static_cast<std::uint32_t>(number(0xFFFFFF)));
        const FontSpec wish{.family = number(4) == 0 ? "Fixedsys" : "MS Sans Serif",
                            .points = static_cast<float>(7 + number(30)),
                            .bold = number(2) == 0};
        const int what = number(12);
        for (std::size_t i = 0; i < 2; ++i) {
            Bitmap& own = all_[i][0];
            Bitmap& other = all_[i][1];
            own.setClip(clip);
            switch (what) {
                case 0: own.fill(from, colour); break;
                case 1: own.copy(own, from, to, op); break;
                case 2: own.copy(other, from, to, op); break;
                case 3: own.stretch(other, from, {to, {from.h, -from.w}}, op); break;
                case 4: own.invert(from); break;
                case 5: own.line(from.at(), to, colour); break;
                case 6: own.circle(to, from.w, colour); break;
                case 7: std::swap(own, other); break;
                case 8: own.setPixel(to, colour); break;
                case 9: other = own; break;
                default: fonts_[i]->get(wish).draw(own, to, "Zwölf Boxkämpfer"_t, colour); break;
            }
        }
    }

    void compare() {
        const Bitmap& noted = all_[0][0];
        ASSERT_EQ(noted, all_[1][0]);
        EXPECT_EQ(all_[1][0].letters(), nullptr);
        Rect part = noted.bounds();
        LetterLift lift;
        const std::vector<Letter> letters = lift.lift(noted, part);
        lifted += letters.size();
        Bitmap whole = lift.base();
        for (const Letter& letter : letters) {
            whole.setClip(letter.seen);
            letter.font->ink(whole, letter.at, TextView(&letter.character, 1), letter.colour);
        }
        ASSERT_EQ(whole, noted);
    }

    std::size_t lifted = 0;

private:
    int number(int below) { return random_.below(below); }

    Random random_;
    std::array<std::unique_ptr<Fonts>, 2> fonts_{makeFonts(), makeFonts()};
    std::array<std::array<Bitmap, 2>, 2> all_{std::array{Bitmap(area), Bitmap(area, white)},
                                              std::array{Bitmap(area), Bitmap(area, white)}};
};

TEST(Letters, ChangeNothingAndCanBeLifted) {
    std::size_t lifted = 0;
    for (std::uint64_t seed = 1; seed <= 30; ++seed) {
        TwoPictures pictures(seed);
        for (int i = 0; i < 40; ++i) {
            pictures.draw();
            pictures.compare();
            if (testing::Test::HasFatalFailure()) FAIL() << "seed " << seed << ", step " << i;
        }
        lifted += pictures.lifted;
    }
    EXPECT_GT(lifted, 1000U);
}

TEST(Letters, StandOnTheirOutlineAlsoInTheColourOfTheGround) {
    const auto fonts = makeFonts();
    fonts->setNotes(true);
    Bitmap picture(area);
    const Font& font = fonts->get({});
    font.drawOutline(picture, {20, 20}, "Ab", black);
    EXPECT_EQ(picture.letters(), nullptr) << "an outline is no text";
    const Bitmap outline = picture;
    font.draw(picture, {20, 20}, "Ab", black);
    LetterLift lift;
    Rect part = picture.bounds();
    EXPECT_EQ(lift.lift(picture, part).size(), 2U);
    EXPECT_EQ(lift.base(), outline);
}

// A room with a surface on it, at three times its size.
struct Room {
    Room() { scene.opened(window); }
    void show(Enlarging how, bool fine) {
        fonts->setNotes(fine);
        scene.setFineLetters(fine);
        scene.layOut({{450, 300}, how});
        paint();
    }
    void paint() { scene.paint({screen.row(0), screen.width() * 4, screen.size()}); }

    std::unique_ptr<Fonts> fonts = makeFonts();
    test::Stage stage;
    Window window{stage.platform, "Room", "", {150, 100}, Frame::fixed};
    Surface surface{*fonts, &window.root(), {0, 0, 150, 100}};
    Bitmap screen{{450, 300}};
    sdl::Scene scene;
};

TEST(FineLetters, AreDrawnInTheScreensPixelsAndLeaveNothingBehind) {
    for (const Enlarging how : {Enlarging::whole, Enlarging::sharp, Enlarging::smooth}) {
        Room fine;
        Room plain;
        for (Room* const room : {&fine, &plain}) room->show(how, room == &fine);
        EXPECT_EQ(fine.screen, plain.screen);
        for (Room* const room : {&fine, &plain}) {
            room->surface.printAt({20, 30}, "Wörter"_t, white);
            room->paint();
        }
        EXPECT_NE(fine.screen, plain.screen);
        std::int64_t light[2] = {0, 0};
        for (int y = 0; y < 300; ++y)
            for (int x = 0; x < 450; ++x) {
                light[0] += fine.screen.pixel({x, y}) & 0xFF;
                light[1] += plain.screen.pixel({x, y}) & 0xFF;
            }
        EXPECT_NEAR(static_cast<double>(light[0]) / static_cast<double>(light[1]), 1, 0.25);
        // A stroke across a part of them, and then nothing.
        for (Room* const room : {&fine, &plain}) {
            room->surface.box({25, 0}, {28, 99}, black);
            room->paint();
            room->surface.clear();
            room->paint();
        }
        EXPECT_EQ(fine.screen, plain.screen);
    }
}

TEST(FineLetters, OfACoveredTextStandAsTheyAre) {
    Room room;
    room.show(Enlarging::whole, true);
    room.surface.printAt({20, 30}, "mm", white);
    room.surface.line({0, 36}, {149, 36}, white);
    room.paint();
    Room plain;
    plain.show(Enlarging::whole, false);
    plain.surface.printAt({20, 30}, "mm", white);
    plain.surface.line({0, 36}, {149, 36}, white);
    plain.paint();
    EXPECT_EQ(room.screen.pixel({60, 3 * 36 + 1}), plain.screen.pixel({60, 3 * 36 + 1}));
}

}  // namespace
}  // namespace zentrox
