// The window of Jump: from its first moment to each of its ends.
#include <gtest/gtest.h>

#include "games/jump/jump.h"
#include "platform/values/error.h"
#include "tests/jump/pictures.h"
#include "tests/jump/player.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

class JumpWindow : public ::testing::Test {
protected:
    test::Stage stage;
    Zustand z;
    Medien media{stage.platform, z};

    void SetUp() override {
        test::writeJumpPictures(stage.directory);
        stage.directory.write("games/jump.mid", "a song");
        z.PfadGames = stage.platform.files.programDirectory() + "games\\";
        z.Übergabe = Text("1");
    }
    void show() { JumpZeigen(stage.platform, z, media); }
    bool outcome() const { return std::get<bool>(z.Übergabe); }
    void key(Input::Kind kind, int code) { stage.backend.input({.kind = kind, .code = code}); }
    std::size_t count(TextView name) const {
        std::size_t n = 0;
        for (const Text& note : stage.sound.notes) n += note.ends_with(name) ? 1 : 0;
        return n;
    }
};

TEST_F(JumpWindow, APlayerAtTheKeysWinsAndSeesTheCelebration) {
    // The first tick runs at 16 ms, the second at 20, and each further one 20 later.
    auto keys = test::Player().plan();
    ASSERT_FALSE(keys.empty());
    test::Keys held;
    stage.backend.wait(10);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        for (const int code : held)
            if (std::find(keys[i].begin(), keys[i].end(), code) == keys[i].end()) key(Input::Kind::keyUp, code);
        for (const int code : keys[i])
            if (std::find(held.begin(), held.end(), code) == held.end()) key(Input::Kind::keyDown, code);
        held = keys[i];
        if (i > 0) stage.backend.wait(20);
    }
    for (const int code : held) key(Input::Kind::keyUp, code);
    show();
    EXPECT_TRUE(outcome());
    EXPECT_NEAR(static_cast<double>(stage.backend.now), 20.0 * static_cast<double>(keys.size() + 500), 200);
    EXPECT_TRUE(stage.sound.notes.front().ends_with("games\\wodds.wav"));
    EXPECT_TRUE(stage.sound.notes[1].ends_with("games\\jump.mid"));
    EXPECT_EQ(stage.sound.notes.back(), "song off");
    EXPECT_GT(count("boing.wav"), 20U);
    EXPECT_GT(count("drip.wav"), 0U);
    EXPECT_EQ(count("e_laugh.wav"), 0U);
    EXPECT_TRUE(stage.platform.queue.windows().empty());
}

TEST_F(JumpWindow, WhoGivesUpLoses) {
    stage.backend.wait(900);
    key(Input::Kind::keyDown, key::escape);
    show();
    EXPECT_FALSE(outcome());
    EXPECT_EQ(count("e_laugh.wav"), 1U);
    EXPECT_TRUE(stage.sound.song.empty());
}

TEST_F(JumpWindow, AMissingOrDamagedPictureIsNamedAndTheGameIsLost) {
    std::filesystem::remove(stage.directory.path() / "games/g32md.bmp");
    stage.backend.wait(1000);
    stage.backend.key(key::enter);
    show();
    ASSERT_EQ(stage.backend.boxes.size(), 1U);
    EXPECT_NE(stage.backend.boxes[0].text.find("games\\g32md.bmp"), Text::npos);
    EXPECT_FALSE(outcome());
    EXPECT_TRUE(stage.sound.song.empty());

    stage.directory.write("games/h2.bmp", "BM and no more");
    z.Übergabe = true;
    stage.backend.wait(1000);
    stage.backend.key(key::enter);
    show();
    EXPECT_NE(stage.backend.boxes[1].text.find("games\\h2.bmp"), Text::npos);
    EXPECT_FALSE(outcome());
    EXPECT_TRUE(stage.platform.queue.windows().empty());
}

TEST_F(JumpWindow, ClosedAtAnyMomentItIsLost) {
    for (const Milliseconds after : {0, 15, 16, 17, 19, 20, 21, 40, 333, 1000}) {
        z.Übergabe = Text("1");  // what the story wrote behind the flag is no outcome
        stage.backend.wait(after);
        stage.backend.closeBox();
        show();
        EXPECT_FALSE(outcome()) << after;
        EXPECT_TRUE(stage.platform.queue.windows().empty());
        EXPECT_TRUE(stage.sound.song.empty());
    }
}

TEST_F(JumpWindow, SaysThatItLoadsFromItsFirstPictureOn) {
    std::vector<bool> seen;
    stage.backend.onPresent = [&] {
        if (const Window* const window = stage.platform.queue.active(); window != nullptr && seen.size() < 1)
            seen.push_back(window->shows("Bitte Warten - Laden"));
    };
    stage.backend.wait(100);
    stage.backend.closeBox();
    show();
    EXPECT_EQ(seen, std::vector{true});
}

// The tap is over before the game looks at the keys.
TEST_F(JumpWindow, ATapBetweenTwoTicksCounts) {
    stage.backend.wait(1505);
    stage.backend.key(key::space);
    stage.backend.wait(100);
    stage.backend.closeBox();
    show();
    EXPECT_EQ(count("boing.wav"), 1U);
}

TEST_F(JumpWindow, TheEndOfTheProgramPassesThrough) {
    stage.backend.wait(500);
    stage.backend.then([] { Queue::endProgram(3); });
    EXPECT_THROW(show(), ProgramEnd);
    EXPECT_TRUE(stage.platform.queue.windows().empty());
}

}  // namespace
}  // namespace zentrox
