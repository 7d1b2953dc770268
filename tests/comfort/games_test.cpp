// What is put around the mini-games.
#include "comfort/games.h"

#include <gtest/gtest.h>

#include "platform/values/keys.h"
#include "tests/comfort/machine.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

struct GamesTest : testing::Test {
    test::Stage stage;
    Zustand zustand;
    test::FakeMachine machine;
    Comforts comforts{stage.platform, zustand, machine, stage.directory.path() / "settings"};
    GameComforts games{comforts};
    int played = 0;

    void set(int pace, bool letThrough) {
        Settings settings;
        settings.gamePace = pace;
        settings.letThrough = letThrough;
        comforts.change(settings);
    }
    // Plays a game that leaves this outcome; gives what the story gets.
    Übergabewert play(const Text& name, Übergabewert outcome) {
        games.wrapper()(name, [&] {
            ++played;
            zustand.Übergabe = outcome;
        })();
        return zustand.Übergabe;
    }
    void key(int code) {
        stage.backend.input({.kind = Input::Kind::keyDown, .code = code});
        stage.backend.input({.kind = Input::Kind::keyUp, .code = code});
    }
};

TEST_F(GamesTest, AfterThreeDefeatsInARowThePlayerIsAsked) {
    const Übergabewert won = true, lost = false;
    for (int i = 0; i < 5; ++i) EXPECT_EQ(play("JUMP", lost), lost);
    EXPECT_TRUE(stage.backend.opens.empty()) << "out of the box nobody asks";
    EXPECT_EQ(play("JUMP", won), won);
    set(100, true);
    play("JUMP", lost);
    play("JUMP", won);
    play("JUMP", lost);
    play("PONG", lost);
    EXPECT_EQ(play("JUMP", lost), lost);
    EXPECT_TRUE(stage.backend.opens.empty());
    key(key::escape);
    EXPECT_EQ(play("JUMP", lost), lost) << "the player wants it to stay";
    EXPECT_EQ(stage.backend.opens.size(), 1U);
    key(key::enter);
    EXPECT_EQ(play("JUMP", lost), won) << "and is asked again next time";
}

TEST_F(GamesTest, AGameWithDrawsIsLetThroughWithItsOwnWord) {
    set(100, true);
    const Text name = "MEMORY";
    const Übergabewert lost = Text("L"), won = Text("W"), draw = Text("U");
    play(name, lost);
    play(name, draw);
    play(name, lost);
    key(key::enter);
    EXPECT_EQ(play(name, lost), won);
    EXPECT_EQ(play(name, draw), draw);
}

TEST_F(GamesTest, TheCalmClockIsForGamesThatGoByItAndEndsWithThem) {
    set(50, false);
    const auto paceIn = [&](const Text& name) {
        int pace = 0;
        games.wrapper()(name, [&] { pace = stage.platform.queue.pace(); })();
        return pace;
    };
    EXPECT_EQ(paceIn("JUMP"), 50);
    EXPECT_EQ(paceIn("MEMORY"), 100);
    EXPECT_THROW(games.wrapper()("PONG", [] { throw 1; })(), int);
    EXPECT_EQ(stage.platform.queue.pace(), 100);
}

}  // namespace
}  // namespace zentrox
