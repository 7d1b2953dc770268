// Modality, nesting, the place where input lands, and what a window paints.
#include <gtest/gtest.h>

#include "platform/window/controls/button.h"
#include "platform/window/surface.h"
#include "tests/support/stage.h"

namespace zentrox {
namespace {

class Probe : public Window {
public:
    Probe(Platform& platform, TextView name, Frame frame = Frame::fixed)
        : Window(platform, name, name, {100, 80}, frame),
          face(platform.fonts, &root(), {10, 20, 50, 40}) {
        face.onMove = [this](const PointerEvent& e) { note("move", e); };
        face.onDown = [this](const PointerEvent& e) { note("down", e); };
        face.onUp = [this](const PointerEvent& e) { note("up", e); };
        face.onClick = [this] { log.emplace_back("click"); };
    }
    void onKeyDown(int code) override {
        log.push_back("key " + std::to_string(code));
        if (onKey) onKey(code);
    }
    void onKeyPress(char c) override { log.push_back("press " + std::to_string(c)); }
    void onHeldLost() override { ++lost; }
    bool onQueryClose() override { return mayClose; }
    void onResize() override { log.push_back("resize " + std::to_string(client().w)); }

    Surface face;
    std::vector<std::string> log;
    std::function<void(int)> onKey;
    bool mayClose = true;
    int lost = 0;

private:
    void note(const char* what, const PointerEvent& e) {
        log.push_back(what + (" " + std::to_string(static_cast<int>(e.x))) + "," +
                      std::to_string(static_cast<int>(e.y)));
    }
};

using Log = std::vector<std::string>;

TEST(WindowTest, InputGoesToTheTopmostWindowWhileTimersBelowRun) {
    test::Stage stage;
    Platform& platform = stage.platform;
    int ticks = 0;
    Probe below(platform, "below");
    Timer timer(platform.queue, 50, true, [&] { ++ticks; });
    Probe above(platform, "above");
    below.onKey = [&](int code) {
        if (code == 65) above.showModal();
    };

    stage.backend.key(65);
    stage.backend.wait(200);
    stage.backend.click({12, 23});
    stage.backend.key(66);
    above.onKey = [&](int) { above.close(); };
    stage.backend.wait(10);
    stage.backend.key(67);
    below.open();
    platform.queue.waitUntil("test", [&] { return below.log.size() == 2; });
    EXPECT_EQ(above.log, (Log{"move 2,3", "down 2,3", "up 2,3", "click", "key 66"}));
    EXPECT_EQ(below.log, (Log{"key 65", "key 67"}));
    EXPECT_GE(ticks, 3);
}

TEST(WindowTest, APressKeepsThePointerUntilTheRelease) {
    test::Stage stage;
    Probe window(stage.platform, "w");
    window.open();
    stage.backend.press({12, 23});
    stage.backend.move({95, 5}, Button::left);
    stage.backend.release({95, 5});  // elsewhere: no click
    stage.backend.move({95, 5});
    stage.platform.queue.waitUntil(
        "test", [] { return false; }, 10);
    EXPECT_EQ(window.log, (Log{"down 2,3", "move 85,-15", "up 85,-15"}));
}

// What a window got stays with it: when it closes, or another one opens over it, the release is nobody's.
TEST(WindowTest, AnInputBelongsToTheWindowInWhichItBegan) {
    test::Stage stage;
    Platform& platform = stage.platform;
    Probe below(platform, "below");
    Probe above(platform, "above");
    above.face.onDown = [&](const PointerEvent&) { above.close(); };
    below.open();
    stage.backend.then([&] { above.open(); });
    stage.backend.press({12, 23});  // closes it
    stage.backend.move({13, 23}, Button::left);
    stage.backend.release({13, 23});
    stage.backend.then([&] { EXPECT_EQ(below.log, (Log{"move 3,3"})); });
    stage.backend.click({12, 23});
    platform.queue.waitUntil(
        "test", [] { return false; }, 10);
    EXPECT_EQ(below.log, (Log{"move 3,3", "move 2,3", "down 2,3", "up 2,3", "click"}));
}

TEST(WindowTest, AWindowThatOpensTakesThePressFromTheOneBelow) {
    test::Stage stage;
    Platform& platform = stage.platform;
    Probe below(platform, "below");
    Probe above(platform, "above");
    PushButton button(&below.root(), {60, 20, 30, 20}, "B");
    bool clicked = false;
    button.onClick = [&] { clicked = true; };
    below.open();
    const Bitmap atRest = below.compose();
    stage.backend.press({65, 25});
    stage.backend.then([&] {
        EXPECT_NE(below.compose(), atRest);
        above.open();
        EXPECT_NE(below.compose(), atRest) << "the focus stays";
    });
    stage.backend.release({12, 23});
    stage.backend.then([&] {
        EXPECT_TRUE(above.log.empty()) << "never pressed there";
        above.close();
    });
    stage.backend.move({12, 23});  // and the button below has not kept the pointer
    stage.backend.release({65, 25});
    platform.queue.waitUntil(
        "test", [] { return false; }, 10);
    EXPECT_EQ(below.log, (Log{"move 2,3"}));
    EXPECT_FALSE(clicked);
}

TEST(WindowTest, HeldKeysAreNotTheNextWindows) {
    test::Stage stage;
    Platform& platform = stage.platform;
    constexpr Input down{.kind = Input::Kind::keyDown, .code = 13};
    Probe below(platform, "below");
    Probe above(platform, "above");
    above.onKey = [&](int) { above.close(); };
    below.open();
    above.open();
    stage.backend.input(down);
    stage.backend.input({.kind = Input::Kind::keyPress, .character = '\r'});
    stage.backend.input(down);
    stage.backend.input({.kind = Input::Kind::keyPress, .character = '\r'});
    stage.backend.then([&] { EXPECT_EQ(below.log, Log{}); });
    stage.backend.input({.kind = Input::Kind::keyUp, .code = 13});
    stage.backend.input(down);
    stage.backend.input({.kind = Input::Kind::keyPress, .character = '\r'});
    stage.backend.input(down);  // held on
    platform.queue.waitUntil(
        "test", [] { return false; }, 10);
    EXPECT_EQ(above.log, (Log{"key 13"}));
    EXPECT_EQ(below.log, (Log{"key 13", "press 13"}));
}

// The game says when one of its states is over; what began behind a moment can be told apart.
TEST(WindowTest, AnInputBelongsToTheStateInWhichItBegan) {
    test::Stage stage;
    Probe window(stage.platform, "w");
    Queue& queue = stage.platform.queue;
    HeldInputs::Mark between = 0;
    window.open();
    stage.backend.press({12, 23});
    stage.backend.then([&] { between = queue.heldMark(); });
    stage.backend.input({.kind = Input::Kind::keyDown, .code = 65});
    stage.backend.then([&] { queue.disownHeld(between); });
    stage.backend.input({.kind = Input::Kind::keyDown, .code = 65, .repeat = true});
    stage.backend.release({12, 23});
    stage.backend.press({12, 23});
    stage.backend.then([&] { queue.disownHeld(); });
    stage.backend.move({14, 23}, Button::left);
    stage.backend.release({14, 23});
    queue.waitUntil(
        "test", [] { return false; }, 10);
    EXPECT_EQ(window.log, (Log{"down 2,3", "key 65", "up 2,3", "click", "down 2,3", "move 4,3"}));
    EXPECT_EQ(window.lost, 2);
}

TEST(WindowTest, AClosingWindowMayRefuse) {
    test::Stage stage;
    Probe window(stage.platform, "w");
    window.mayClose = false;
    stage.backend.closeBox();
    stage.backend.then([&] {
        EXPECT_TRUE(window.isOpen());
        window.mayClose = true;
    });
    stage.backend.closeBox();
    window.showModal();
    EXPECT_EQ(stage.platform.queue.active(), nullptr);
}

TEST(WindowTest, OnlyASizableWindowIsResizedAndNeverBelowItsMinimum) {
    test::Stage stage;
    Probe fixed(stage.platform, "fixed");
    Probe sizable(stage.platform, "sizable", Frame::sizable);
    sizable.minimum = {90, 70};
    for (Probe* const window : {&fixed, &sizable}) {
        window->open();
        stage.backend.input({.kind = Input::Kind::resize, .size = {300, 10}});
        stage.platform.queue.yield("test");
        window->close();
    }
    EXPECT_EQ(fixed.client(), (Size{100, 80}));
    EXPECT_EQ(sizable.client(), (Size{300, 70}));
    EXPECT_EQ(sizable.log, (Log{"resize 300"}));
}

TEST(WindowTest, ComposesFromBackToFrontAndTellsWhatIsNew) {
    test::Stage stage;
    Probe window(stage.platform, "w");
    Surface front(stage.platform.fonts, &window.face, {40, 30, 50, 50}, Colour(1, 2, 3));
    window.compose();
    window.takeNews();
    EXPECT_EQ(window.compose().pixel({51, 51}), static_cast<std::int32_t>(Colour(1, 2, 3).rgb));
    EXPECT_NE(window.compose().pixel({61, 51}), static_cast<std::int32_t>(Colour(1, 2, 3).rgb))
        << "cut by its parent";
    EXPECT_TRUE(window.takeNews().empty());

    window.face.box({1, 1}, {2, 3}, white);
    EXPECT_TRUE(window.stale());
    EXPECT_EQ(window.compose().pixel({12, 23}), static_cast<std::int32_t>(white.rgb));
    EXPECT_EQ(window.takeNews(), (Rect{11, 21, 2, 3}));
    front.setVisible(false);
    EXPECT_EQ(window.compose().pixel({51, 51}), static_cast<std::int32_t>(black.rgb));
    window.face.setVisible(false);
    window.takeNews();
    front.box({0, 0}, {5, 5}, white);  // nobody sees it
    EXPECT_FALSE(window.compose().empty());
}

TEST(WindowTest, AToolTipShowsAfterARestAndGoesWithTheNextMove) {
    test::Stage stage;
    Probe window(stage.platform, "w");
    window.face.setToolTip("Ein Schlüssel");
    window.open();
    stage.backend.move({30, 30});
    Queue& queue = stage.platform.queue;
    queue.waitUntil(
        "test", [] { return false; }, 400);
    EXPECT_FALSE(window.toolTipShown());
    queue.waitUntil(
        "test", [] { return false; }, 600);
    EXPECT_TRUE(window.toolTipShown());
    const Bitmap with = window.compose();
    stage.backend.move({31, 30});
    queue.yield("test");
    EXPECT_FALSE(window.toolTipShown());
    EXPECT_NE(with, window.compose());
}

}  // namespace
}  // namespace zentrox
