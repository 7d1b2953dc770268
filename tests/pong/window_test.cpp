// The window: its controls, its timers, its keys and what goes wrong.
#include <gtest/gtest.h>

#include "games/pong/pong.h"
#include "games/pong/pongfenster.h"
#include "platform/values/error.h"
#include "pong_table.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

Pongbilder blank() {
    const Bitmap dot({10, 10}, white);
    return {.Image1 = {dot, dot, dot, dot},
            .Image4 = dot,
            .Image5 = dot,
            .Image7 = {dot, dot},
            .Image8 = dot,
            .Image9 = dot};
}

struct Play : Stage {
    Zustand z;
    Medien media{platform, z};

    Play() {
        z.PfadGames = platform.files.programDirectory() + "games\\";
        z.Übergabe = Text("7");
    }
    Pong& window() { return dynamic_cast<Pong&>(*platform.queue.active()); }
    const Pongspiel& s() { return window().spiel(); }
    void show() { Pong(platform, z, media, blank()).showModal(); }
    bool heard(TextView file) {
        return std::find(sound.notes.begin(), sound.notes.end(), "effect " + z.PfadGames + Text(file)) !=
               sound.notes.end();
    }
};

TEST(PongWindow, HasItsControlsAndTicksByTheClock) {
    Play play;
    play.backend.then([&] {
        Window& w = play.window();
        EXPECT_EQ(w.name(), "Pong");
        EXPECT_EQ(w.client(), (Size{640, 480}));
        EXPECT_TRUE(w.shows("Neues Spiel") && w.shows("Ende") && w.shows("Kessa") && w.shows("Velmix") &&
                    w.shows(" 0"));
    });
    float before = 0;
    play.backend.wait(2500);
    play.backend.then([&] {
        EXPECT_TRUE(play.s().takte.Timer1);
        EXPECT_TRUE(play.heard("pong.wav"));
        before = play.s().ballX;
    });
    play.backend.wait(160);
    play.backend.then([&] { EXPECT_NEAR(play.s().ballX, before + 10 * 5.2F, 5.3F) << "one step each 16 ms"; });
    play.backend.closeBox();
    play.show();
    EXPECT_EQ(play.z.Übergabe, Übergabewert(Text("7"))) << "who has not won leaves it alone";
}

// Taps that are over before the game looks at the keys.
TEST(PongWindow, PausesAndGoesOnByATap) {
    Play play;
    play.backend.wait(1000);
    play.backend.key('P');
    play.backend.wait(1500);
    play.backend.then([&] {
        EXPECT_TRUE(play.s().takte.Timer1);
        EXPECT_FALSE(play.s().pause) << "a tap during the serve is forgotten";
    });
    play.backend.key('P');
    play.backend.wait(100);
    play.backend.then([&] { EXPECT_TRUE(play.s().pause); });
    play.backend.key('O');
    play.backend.wait(100);
    play.backend.then([&] { EXPECT_FALSE(play.s().pause); });
    play.backend.closeBox();
    play.show();
}

TEST(PongWindow, ReadsTheKeysWhateverHasTheFocus) {
    Play play;
    play.backend.wait(2500);
    play.backend.click({300, 465});  // the score of Kessa
    play.backend.type("po");
    play.backend.key(key::backspace);
    play.backend.input({.kind = Input::Kind::keyDown, .code = key::up});
    play.backend.input({.kind = Input::Kind::keyDown, .code = key::space});
    play.backend.wait(320);
    play.backend.then([&] {
        EXPECT_LT(play.s().spielerY, 160);
        EXPECT_TRUE(play.window().shows(" 0"));
    });
    play.backend.click({40, 468});
    play.backend.then([&] {
        EXPECT_TRUE(play.s().takte.Timer6) << "a new match";
        EXPECT_EQ(play.s().spielerY, 215);
    });
    play.backend.closeBox();
    play.show();
}

// Holds the keys of a swinging player from now on until the match is over, then calls `after`.
void playToTheEnd(Play& play, std::function<void()> after) {
    if (play.s().spielEnde) return after();
    test::Swinger player;
    const std::set<int> wanted = player.keys(play.s());
    const auto held = play.backend.keys();
    for (const int code : {key::up, key::down}) {
        const bool down = held[static_cast<std::size_t>(code)] != 0;
        if (wanted.contains(code) != down)
            play.backend.input({.kind = down ? Input::Kind::keyUp : Input::Kind::keyDown, .code = code});
    }
    play.backend.wait(16);
    play.backend.then([&play, after = std::move(after)] { playToTheEnd(play, after); });
}

TEST(PongWindow, HandsOverAVictoryForGood) {
    Play play;
    play.backend.then([&] {
        playToTheEnd(play, [&] {
            EXPECT_EQ(play.window().title(), " Freu dich nicht! Das war nur Glück."_t);
            EXPECT_EQ(play.z.Übergabe, Übergabewert(true));
            play.backend.click({40, 468});
            play.backend.wait(5000);
            play.backend.closeBox();
        });
    });
    play.show();
    EXPECT_EQ(play.z.Übergabe, Übergabewert(true)) << "whatever the next match brings";
}

TEST(PongWindow, ClosesInEveryPhase) {
    for (const Milliseconds when : {0, 100, 1900, 2500, 3700, 4000, 5000, 6500, 58'000, 70'000}) {
        Play play;
        play.backend.wait(when);
        play.backend.closeBox();
        play.show();
        EXPECT_TRUE(play.platform.queue.windows().empty()) << when;
    }
}

TEST(PongWindow, EndsTheProgramByItsButton) {
    Play play;
    play.backend.click({120, 468});
    EXPECT_THROW(play.show(), ProgramEnd);
    EXPECT_TRUE(play.platform.queue.windows().empty());
}

TEST(PongWindow, CountsAsLostWithoutItsPictures) {
    Play play;
    play.directory.write("games/1(0).bmp", "BM");
    play.backend.wait(10);
    play.backend.key(key::enter);
    PongZeigen(play.platform, play.z, play.media);
    ASSERT_EQ(play.backend.boxes.size(), 1U);
    EXPECT_NE(play.backend.boxes[0].text.find("1(0).bmp"), Text::npos) << play.backend.boxes[0].text;
    EXPECT_EQ(play.z.Übergabe, Übergabewert(false));
}

}  // namespace
}  // namespace zentrox::test
