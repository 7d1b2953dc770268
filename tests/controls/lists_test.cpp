#include <gtest/gtest.h>

#include "platform/window/controls/button.h"
#include "platform/window/controls/list.h"
#include "playground.h"

namespace zentrox::test {
namespace {

// A list of 6 rows.
struct ListPlay : Playground {
    List list{&window.root(), {0, 0, 200, 6 * 13 + 4}};
    std::vector<Text> told;
    ListPlay() {
        window.open();
        window.setFocus(&list);
        list.onSelect = [this] { told.push_back(list.selectedText()); };
        list.onDoubleClick = [this] { told.push_back("doppelt"); };
    }
    Point row(int n) const { return {20, 2 + 13 * n + 6}; }
    void fill(int count) {
        std::vector<Text> items;
        items.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) items.push_back("Spiel " + std::to_string(i));
        list.setItems(std::move(items));
    }
};

TEST(List, ClicksChooseAndDoubleClicksDoMore) {
    ListPlay play;
    play.fill(3);
    play.click(play.row(5));
    EXPECT_FALSE(play.list.selected()) << "below the last item";
    play.click(play.row(1));
    play.press(play.row(1), 2);
    EXPECT_EQ(play.told, (std::vector<Text>{"Spiel 1", "Spiel 1"})) << "the second press alone is no double click";
    play.release(play.row(1));
    EXPECT_EQ(play.told.back(), "doppelt");
    play.told.clear();
    play.click(play.row(2), 2);
    EXPECT_EQ(play.told, (std::vector<Text>{"Spiel 2"})) << "the first click was on another item";
    play.press(play.row(0));
    play.drag(play.row(1));
    EXPECT_EQ(play.list.selected(), 1U);
}

TEST(List, KeysMoveAndScrollAndLettersFind) {
    ListPlay play;
    play.fill(50);
    play.key(key::down);
    EXPECT_EQ(play.list.selected(), 0U);
    play.key(key::up);
    EXPECT_EQ(play.told.size(), 1U) << "the first one stays, nobody is told";
    play.key(key::end);
    EXPECT_EQ(play.list.selected(), 49U);
    EXPECT_EQ(play.list.topItem(), 44);
    play.key(key::pageUp);
    EXPECT_EQ(play.list.selected(), 44U);
    play.key(key::home);
    EXPECT_EQ(play.list.topItem(), 0);

    play.list.setItems({"Anna", Text("Ärger"_t), "berta", "Bert"});
    play.window.routing().keyPress('B');
    EXPECT_EQ(play.list.selectedText(), "berta");
    play.window.routing().keyPress('b');
    EXPECT_EQ(play.list.selectedText(), "Bert");
    play.window.routing().keyPress('\xE4');
    EXPECT_EQ(play.list.selected(), 1U);
}

TEST(List, ScrollsByWheelAndBarOnlyIfItIsLong) {
    ListPlay play;
    play.fill(6);
    play.window.routing().wheel(play.row(1), -3);
    EXPECT_EQ(play.list.topItem(), 0);
    play.click({190, 20});
    EXPECT_EQ(play.list.selected(), 1U) << "no bar, so the row reaches to the edge";
    play.fill(10'000);
    play.window.routing().wheel(play.row(1), -3);
    EXPECT_EQ(play.list.topItem(), 3);
    play.click({190, 75});
    EXPECT_EQ(play.list.topItem(), 4);
    EXPECT_FALSE(play.list.selected());
    EXPECT_TRUE(play.window.shows("Spiel 9999"));
    play.list.select(5000);
    EXPECT_EQ(play.list.topItem(), 4995);
    EXPECT_TRUE(play.told.size() == 1U) << "a choice by the program tells nobody";
}

TEST(List, AnEmptyOneBearsEverything) {
    ListPlay play;
    play.fill(0);
    for (const int code : {key::up, key::down, key::end, key::pageDown}) play.key(code);
    play.click(play.row(0), 2);
    play.window.routing().keyPress('x');
    EXPECT_FALSE(play.list.selected());
    EXPECT_TRUE(play.told.empty());
}

TEST(PushButton, IsClickedByPointerAndKeys) {
    Playground play;
    PushButton button(&play.window.root(), {10, 10, 80, 25}, "OK");
    int clicks = 0;
    button.onClick = [&] { ++clicks; };
    play.window.open();
    play.click({20, 20});
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(play.window.focus(), &button);
    play.press({20, 20});
    play.drag({200, 20});
    play.release({200, 20});
    EXPECT_EQ(clicks, 1) << "let go beside it";
    play.key(key::space);
    play.key(key::enter);
    EXPECT_EQ(clicks, 3);
    button.setEnabled(false);
    play.click({20, 20});
    play.key(key::enter);
    EXPECT_EQ(clicks, 3);
}

}  // namespace
}  // namespace zentrox::test
