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
    // Clicks all over the field, five in a tick's time.
    void clickEverywhere(Milliseconds forMs) {
        for (Milliseconds t = 0; t < forMs; t += 20) {
            const Point at{stage.platform.random.below(640), stage.platform.random.below(440)};
            stage.backend.press(at);
            stage.backend.release(at);
            stage.backend.wait(20);
        }
    }
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
    bool celebrated = false;
    clickEverywhere(14'000);
    stage.backend.wait(5000);
    stage.backend.then([&] {
        const Window* const window = stage.platform.queue.active();
        celebrated = window != nullptr && window->shows("Gewonnen!");
    });
    stage.backend.press({5, 5}, 1, Button::right);
    show();
    // Random clicks win long before their time and the next one ends the celebration.
    EXPECT_TRUE(outcome());
    EXPECT_TRUE(celebrated || stage.backend.now < 14'000);
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
