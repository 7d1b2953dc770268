// What the comforts do between the machine and the queue.
#include <gtest/gtest.h>

#include "comfort/desk.h"
#include "platform/values/keys.h"
#include "tests/comfort/machine.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

using test::FakeMachine;

struct ComfortsTest : testing::Test {
    test::Stage stage;
    Zustand zustand;
    FakeMachine machine;
    std::filesystem::path file = stage.directory.path() / "config/einstellungen.txt";
    Comforts comforts{stage.platform, zustand, machine, file};
    Desk desk{comforts};
    Window window{stage.platform, "Form1", "", {640, 480}, Frame::sizable};

    void serve() {
        bool done = false;
        stage.backend.then([&] { done = true; });
        stage.platform.queue.waitUntil("test", [&] { return done; });
    }
    void key(int code, bool control = false) {
        stage.backend.input({.kind = Input::Kind::keyDown, .code = code, .control = control});
        stage.backend.input({.kind = Input::Kind::keyUp, .code = code});
    }
};

TEST_F(ComfortsTest, WhatTheMachinesOwnKeysChangeIsKept) {
    window.open();
    machine.full = true;
    stage.backend.move({1, 100});
    serve();
    EXPECT_TRUE(comforts.settings().fullScreen);
    EXPECT_TRUE(std::filesystem::exists(file));
    FakeMachine next;
    const Comforts again(stage.platform, zustand, next, file);
    EXPECT_TRUE(next.full);
}

TEST_F(ComfortsTest, AMinimisedWindowAndTheSettingsPauseTheSoundTogether) {
    comforts.pausedDuring([&] {
        comforts.machineStands(true);
        EXPECT_EQ(machine.soundPaused, (std::vector<bool>{true}));
    });
    EXPECT_EQ(machine.soundPaused, (std::vector<bool>{true}));
    EXPECT_FALSE(stage.platform.queue.stands());
    comforts.machineStands(false);
    EXPECT_EQ(machine.soundPaused, (std::vector<bool>{true, false}));
}

TEST_F(ComfortsTest, CtrlUMutesAndTheLetterStaysTheGames) {
    window.open();
    key('U', true);
    serve();
    EXPECT_TRUE(comforts.settings().muted);
    key('U');
    serve();
    EXPECT_TRUE(comforts.settings().muted);
}

TEST_F(ComfortsTest, ADirectoryThatCannotBeWrittenIsBorne) {
    std::filesystem::create_directories(file);  // a directory in the place of the file
    Settings settings;
    settings.music = 50;
    comforts.change(settings);
    EXPECT_EQ(comforts.settings().music, 50);
}

}  // namespace
}  // namespace zentrox
