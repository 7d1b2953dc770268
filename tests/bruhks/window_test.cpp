// The window of Bruhks: the hunt won, lost and left.
#include <gtest/gtest.h>

#include "games/bruhks/bruhks.h"
#include "platform/values/error.h"
#include "platform/window/surface.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

class BruhksWindow : public ::testing::Test {
protected:
    test::Stage stage;
    Zustand z;
    Medien media{stage.platform, z};

    void SetUp() override {
        z.PI = 3.14159274F;
        z.Übergabe = true;
    }
    void show() { BruhksZeigen(stage.platform, z, media); }
    bool outcome() const { return std::get<bool>(z.Übergabe); }
    Text seconds() const { return stage.platform.queue.active()->find("Label2")->shownText(); }
    bool celebrated = false;
    // Clicks somewhere on the field in each tick until all creatures are hit and the text of the celebration
    // stands, then ends that by another button.
    void huntUntilTheTextStands(int ticks) {
        stage.backend.wait(20);
        stage.backend.then([this, ticks] {
            celebrated = stage.platform.queue.active()->shows("Gewonnen!");
            if (celebrated) {
                stage.backend.wait(2500);
                return stage.backend.press({5, 5}, 1, Button::right);
            }
            const Point at{where_.below(640), where_.below(440)};
            stage.backend.press(at);
            stage.backend.release(at);
            if (ticks > 0) huntUntilTheTextStands(ticks - 1);
        });
    }

private:
    Random where_{3};
};

TEST_F(BruhksWindow, TheTimeRunsOutWithOneSecondOnTheLabelEachSecond) {
    std::vector<Text> shown;
    stage.backend.wait(500);
    for (int i = 0; i < 20; ++i) {
        stage.backend.then([&] { shown.push_back(seconds()); });
        stage.backend.wait(1000);
    }
    show();
    ASSERT_EQ(shown.size(), 20U);
    EXPECT_EQ(shown[0], "20");
    EXPECT_EQ(shown[1], "19");
    EXPECT_EQ(shown[19], "1");
    EXPECT_FALSE(outcome());
    EXPECT_GE(stage.backend.now, 20'000);
    EXPECT_LT(stage.backend.now, 20'100);
}

TEST_F(BruhksWindow, WhoClicksThemAllSeesTheTextAndEndsItWithAClick) {
    huntUntilTheTextStands(700);
    show();
    EXPECT_TRUE(celebrated);
    EXPECT_TRUE(outcome());
    EXPECT_TRUE(stage.platform.queue.windows().empty());
}

TEST_F(BruhksWindow, ClosedAtAnyMomentItIsLost) {
    for (const Milliseconds after : {0, 16, 17, 20, 999, 1000, 5000}) {
        z.Übergabe = Text("x");
        stage.backend.wait(after);
        stage.backend.closeBox();
        show();
        EXPECT_FALSE(outcome()) << after;
    }
    stage.backend.wait(300);
    stage.backend.then([] { Queue::endProgram(); });
    EXPECT_THROW(show(), ProgramEnd);
}

}  // namespace
}  // namespace zentrox
