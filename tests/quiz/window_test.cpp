// The window of the quiz: won, lost, closed, and without questions.
#include <gtest/gtest.h>

#include "games/quiz/quiz.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

constexpr std::array<Point, 4> fields{{{100, 168}, {300, 168}, {100, 208}, {300, 208}}};
constexpr Colour fieldGround{0, 0, 64};

struct Quiz : Stage {
    Zustand z;
    Medien media{platform, z};

    Quiz() {
        z.PfadGames = platform.files.programDirectory() + "games\\";
        z.Übergabe = Text("1");
        directory.write("games/HDW.txt", "Malta#richtig,falsch1,falsch2,falsch3\r\n");
    }
    Window& window() { return *platform.queue.active(); }
    // The label in a field, as the probe sees it.
    Text textAt(Point at) { return window().controlAt(at).shownText(); }
    bool enabled() { return window().controlAt(fields[0]).enabled(); }
    // Answers the question that stands there when the script comes to it.
    void answer(bool right) {
        backend.then([this, right] {
            ASSERT_TRUE(enabled());
            for (const Point at : fields)
                if ((textAt(at) == "richtig") == right) return clickNow(at);
        });
    }
    void clickNow(Point at) {
        window().routing().move(at, Button::none);
        window().routing().down(at, Button::left, 1);
        window().routing().up(at, Button::left);
    }
    long heard(TextView file) {
        return std::count(sound.notes.begin(), sound.notes.end(), "effect " + z.PfadGames + Text(file));
    }
    void show() { HDWZeigen(platform, z, media); }
};

TEST(QuizWindow, IsWonByFourRightAnswers) {
    Quiz quiz;
    for (int number = 1; number <= 4; ++number) {
        quiz.backend.wait(20);
        quiz.backend.then([&quiz, number] {
            EXPECT_TRUE(quiz.window().shows(std::to_string(number) + ". Frage:\r\n"));
            EXPECT_TRUE(quiz.window().shows("Malta"));
        });
        quiz.answer(true);
        quiz.backend.then([&quiz] { EXPECT_FALSE(quiz.enabled()) << "as soon as it is answered"; });
        // The words are away after an odd tick.
        quiz.backend.wait(150);
        quiz.backend.then([&quiz] { EXPECT_FALSE(quiz.window().shows("DAS IST RICHTIG!")); });
        quiz.backend.wait(100);
        quiz.backend.then([&quiz] { EXPECT_TRUE(quiz.window().shows("DAS IST RICHTIG!")); });
        quiz.backend.wait(3740);
        quiz.backend.then(
            [&quiz, number] { EXPECT_FALSE(quiz.window().shows("Frage")) << "four seconds of " << number; });
        quiz.backend.wait(30);
    }
    quiz.show();
    EXPECT_TRUE(quiz.platform.queue.windows().empty());
    EXPECT_EQ(quiz.z.Übergabe, Übergabewert(true));
    EXPECT_EQ(quiz.heard("wodds.wav"), 4);
    EXPECT_EQ(quiz.heard("e_laugh.wav"), 4);
    EXPECT_GE(quiz.backend.now, 16'000);
}

TEST(QuizWindow, IsLostByOneWrongAnswerAndShowsTheRightOne) {
    Quiz quiz;
    quiz.backend.wait(20);
    quiz.answer(true);
    quiz.backend.wait(4050);
    quiz.answer(false);
    quiz.backend.wait(310);
    quiz.backend.then([&] {
        int blinking = 0;
        for (const Point at : fields) {
            const auto pixel = static_cast<std::uint32_t>(quiz.window().compose().pixel(at + Point{-88, 12}));
            const bool turned = pixel == (fieldGround.rgb ^ 0xFFFFFFU);
            EXPECT_EQ(turned, quiz.textAt(at) == "richtig");
            blinking += turned ? 1 : 0;
        }
        EXPECT_EQ(blinking, 1);
        quiz.clickNow(fields[0]);  // too late
    });
    quiz.backend.wait(5600);
    quiz.backend.then([&] { EXPECT_EQ(quiz.platform.queue.windows().size(), 1U) << "six seconds"; });
    quiz.show();
    EXPECT_EQ(quiz.z.Übergabe, Übergabewert(false));
    EXPECT_EQ(quiz.heard("electric.wav"), 1);
    EXPECT_EQ(quiz.heard("e_laugh.wav"), 1);
}

TEST(QuizWindow, ClosesAtEveryWait) {
    for (const bool right : {true, false})
        for (Milliseconds when = 0; when < 6000; when += 100) {
            Quiz quiz;
            quiz.backend.wait(20);
            if (when > 20) quiz.answer(right);
            quiz.backend.wait(when);
            quiz.backend.closeBox();
            quiz.show();
            EXPECT_EQ(quiz.z.Übergabe, Übergabewert(false)) << when;
        }
}

TEST(QuizWindow, SaysWhichFileHoldsNoQuestion) {
    for (const char* const bytes : {"", "\r\n", "Malta#Valletta"}) {
        Quiz quiz;
        quiz.directory.write("games/HDW.txt", bytes);
        quiz.backend.wait(10);
        quiz.backend.key(key::enter);
        quiz.show();
        ASSERT_EQ(quiz.backend.boxes.size(), 1U);
        EXPECT_NE(quiz.backend.boxes[0].text.find("HDW.txt"), Text::npos) << quiz.backend.boxes[0].text;
        EXPECT_EQ(quiz.z.Übergabe, Übergabewert(false));
    }
    Quiz quiz;
    std::filesystem::remove(quiz.directory.path() / "games" / "HDW.txt");
    quiz.backend.wait(10);
    quiz.backend.key(key::enter);
    quiz.show();
    ASSERT_EQ(quiz.backend.boxes.size(), 1U);
    EXPECT_NE(quiz.backend.boxes[0].text.find("HDW.txt"), Text::npos);
}

}  // namespace
}  // namespace zentrox::test
