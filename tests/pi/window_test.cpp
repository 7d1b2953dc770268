// Games played through the window, with limits to the millisecond.
#include <gtest/gtest.h>

#include "games/pi/pi.h"
#include "platform/values/error.h"
#include "tests/support/stage.h"
#include "tools/digits/pi.h"

namespace zentrox::test {
namespace {

constexpr Milliseconds circle = 91 * Milliseconds{16};
constexpr Milliseconds intro = 16 + 500 + 3 * circle;  // the first character is shown then

struct Play : Stage {
    Zustand z;
    Medien media{platform, z};
    Text digits = all();

    static const Text& all() {
        static const Text characters = piCharacters(10'000);
        return characters;
    }
    Play() { z.PfadGames = platform.files.programDirectory() + "games\\"; }
    Window& window() { return *platform.queue.active(); }
    bool shows(TextView text) { return window().shows(text); }
    void type(char c) { backend.type(TextView(&c, 1)); }
    // Types the first `count` characters, each `pause` milliseconds after it appeared.
    void typeRight(int count, Milliseconds pause = 40) {
        for (int i = 0; i < count; ++i) {
            backend.wait(pause);
            type(digits[static_cast<std::size_t>(i)]);
        }
    }
    // Plays until the window has closed; gives the outcome.
    bool show() {
        directory.write("games/Pi10000.txt", digits);
        directory.write("games/canyon.mid", "");
        PIZeigen(platform, z, media);
        EXPECT_TRUE(platform.queue.windows().empty());
        EXPECT_EQ(sound.song, "");
        return std::get<bool>(z.Übergabe);
    }
};

TEST(PiWindow, OpensWithItsThreeScreens) {
    Play play;
    play.z.Übergabe = Text("5");
    play.backend.wait(100);
    play.backend.then([&] {
        EXPECT_EQ(play.window().name(), "PISpiel");
        EXPECT_EQ(play.window().title(), "PI-Spiel");
        EXPECT_EQ(play.window().client(), (Size{369, 273}));
        EXPECT_TRUE(play.shows("PI"));
        EXPECT_EQ(play.z.Übergabe, Übergabewert(false));
        EXPECT_NE(play.sound.song, "");
    });
    play.backend.wait(500 + 45 * 16);
    play.backend.then([&] {
        EXPECT_EQ(play.window().compose().pixel({184, 136 + 100}), 0x00FF00) << "the circle begins below";
        EXPECT_EQ(play.window().compose().pixel({184 + 100, 136 + 3}), 0x00FF00) << "and goes to the right";
        EXPECT_EQ(play.window().compose().pixel({184 - 100, 136 + 3}), 0);
    });
    play.backend.wait(circle);
    play.backend.then([&] { EXPECT_TRUE(play.shows("Ready")); });
    play.backend.wait(circle);
    play.backend.then([&] { EXPECT_TRUE(play.shows("GO!")); });
    play.backend.closeBox();
    EXPECT_FALSE(play.show());
}

TEST(PiWindow, IsLostAt39AndWonAt40) {
    for (const int right : {0, 38, 39, 60}) {
        Play play;
        play.backend.wait(intro + 1);
        play.typeRight(right);
        play.type('x');
        play.backend.wait(200);
        play.backend.then([&] {
            EXPECT_TRUE(play.shows("Game Over"));
            EXPECT_TRUE(play.shows("Da hast du dich wohl vertippt, aber du hast"));
            EXPECT_TRUE(play.shows(std::to_string(right + 1) + " Zeichen von PI geschafft!")) << right;
            EXPECT_EQ(play.sound.song, "");
            EXPECT_EQ(play.sound.notes.back(), "effect " + play.z.PfadGames + "JINGLE.WAV");
        });
        EXPECT_EQ(play.show(), right >= 39) << right;
        EXPECT_NEAR(static_cast<double>(play.backend.now),
                    static_cast<double>(intro + 1 + right * Milliseconds{40} + 10'010), 2)
            << "it ends by itself";
    }
}

TEST(PiWindow, KeepsItsLimitsToTheMillisecond) {
    for (const int right : {0, 9, 39}) {
        for (const bool late : {false, true}) {
            Play play;
            play.backend.wait(intro);
            play.typeRight(right);
            play.backend.wait(2000 - 10 * (right + 1) + (late ? 1 : 0));
            play.type(play.digits[static_cast<std::size_t>(right)]);
            play.backend.wait(100);
            play.backend.then([&] {
                EXPECT_EQ(play.shows("Game Over"), late) << right;
                EXPECT_EQ(play.shows("Das war leider zu langsam... Du hast"), late) << right;
            });
            play.backend.closeBox();
            EXPECT_EQ(play.show(), late && right == 39);
        }
    }
}

TEST(PiWindow, TakesACommaAndKeysTypedAhead) {
    Play play;
    play.backend.wait(intro + 5);
    play.backend.type("3,14159");
    play.backend.wait(100);
    play.backend.then([&] { EXPECT_TRUE(play.shows("#8")); });
    play.backend.closeBox();
    EXPECT_FALSE(play.show());
}

// From the 200th character on only keys that are already there can pass.
TEST(PiWindow, AsksNoMoreThanTheFileHolds) {
    for (const std::size_t length : {12U, 10'000U}) {
        Play play;
        play.digits = piCharacters(length);
        play.backend.wait(intro + 5);
        play.backend.type(play.digits);
        play.backend.wait(100);
        play.backend.then([&] {
            EXPECT_TRUE(play.shows("Ich glaub du hast geschummelt, denn du hast alle"));
            EXPECT_TRUE(play.shows(std::to_string(length) + " Zeichen von PI geschafft!"));
        });
        play.backend.closeBox();
        EXPECT_EQ(play.show(), length >= 40) << "closing the last screen takes nothing back";
    }
}

TEST(PiWindow, ClosesAtEveryWait) {
    for (Milliseconds when = 0; when < intro + 8000; when += 100) {
        Play play;
        play.backend.wait(when);
        play.backend.closeBox();
        EXPECT_FALSE(play.show());
        EXPECT_EQ(play.backend.now, when);
    }
}

TEST(PiWindow, CountsAsLostWithoutDigits) {
    Play play;
    play.directory.write("games/Pi10000.txt", "\n");
    for (int i = 0; i < 2; ++i) {
        play.backend.wait(10);
        play.backend.key(key::enter);
        PIZeigen(play.platform, play.z, play.media);
        EXPECT_EQ(play.z.Übergabe, Übergabewert(false));
        std::filesystem::remove(play.directory.path() / "games/Pi10000.txt");
    }
    ASSERT_EQ(play.backend.boxes.size(), 2U);
    for (const MessageBox& box : play.backend.boxes)
        EXPECT_NE(box.text.find("Pi10000.txt"), Text::npos) << box.text;
}

}  // namespace
}  // namespace zentrox::test
