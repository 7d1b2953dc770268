#include "platform/window/messagebox.h"

#include <gtest/gtest.h>

#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

Control* firstOf(Window& window, TextView kind) {
    for (Control* const control : window.root().children())
        if (control->kind() == kind) return control;
    return nullptr;
}

TEST(MessageBox, ClosesByEveryWayOut) {
    Stage stage;
    const MessageBox box{"Zentrox", "Daten nicht geladen!", MessageBox::Icon::information};
    for (const int code : {key::enter, key::escape, key::space}) {
        stage.backend.key('X');
        stage.backend.then([&] { EXPECT_EQ(stage.platform.queue.active()->name(), "MsgBox"); });
        stage.backend.key(code);
        showMessageBox(stage.platform, box);
        EXPECT_EQ(stage.platform.queue.active(), nullptr);
    }
    stage.backend.closeBox();
    showMessageBox(stage.platform, box);
    stage.backend.then([&] {
        const Rect ok = firstOf(*stage.platform.queue.active(), "button")->areaInWindow();
        stage.backend.click({ok.x + 5, ok.y + 5});
    });
    showMessageBox(stage.platform, box);
    EXPECT_EQ(stage.backend.boxes.size(), 5U);
}

TEST(MessageBox, IsAsLargeAsItsText) {
    Stage stage;
    const auto sizeOf = [&](const MessageBox& box) {
        Size size;
        stage.backend.then([&] {
            Window& window = *stage.platform.queue.active();
            size = window.client();
            const Rect text = firstOf(window, "label")->areaInWindow();
            EXPECT_TRUE(intersection(text, {{0, 0}, size}) == text) << "all of the text is seen";
            window.compose();
        });
        stage.backend.key(key::enter);
        showMessageBox(stage.platform, box);
        return size;
    };
    const Size shortOne = sizeOf({"Zentrox", "7"});
    const Size wide = sizeOf({"Zentrox", Text(60, 'x')});
    const Size wrappedOnce = sizeOf({"Zentrox", Text(60, 'x') + " " + Text(60, 'y')});
    EXPECT_LT(shortOne.w, 160);
    EXPECT_EQ(wide.w, 60 * FakeFont::advance + 24);
    EXPECT_EQ(wrappedOnce.w, wide.w);
    EXPECT_EQ(wrappedOnce.h, wide.h + FakeFont::height);
    EXPECT_LT(sizeOf({"Zentrox", Text(5000, 'x'), MessageBox::Icon::critical}).w, 500);
    EXPECT_LE(sizeOf({"Zentrox", Text(100'000, 'x')}).h, 480) << "the button is seen";
    EXPECT_GE(sizeOf({Text(40, 'T'), "kurz"}).w, 40 * FakeFont::advance);
}

}  // namespace
}  // namespace zentrox::test
