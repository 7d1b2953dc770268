// The game's windows in one picture.
#include "platform/sdl/scene.h"

#include <gtest/gtest.h>

#include "platform/window/controls/look.h"
#include "tests/support/stage.h"

namespace zentrox::sdl {
namespace {

constexpr Colour red{255, 0, 0};
constexpr Colour green{0, 255, 0};

// A red room of 300 by 200 with a green dialog of 100 by 60 in its middle, on a screen of twice that size.
struct Shown {
    Shown() {
        scene.opened(room);
        scene.opened(dialog);
        scene.layOut({{600, 400}, Enlarging::whole});
        paint();
    }
    Rect paint() { return scene.paint({screen.row(0), screen.width() * 4, screen.size()}); }
    Colour at(Point p) const { return Colour(static_cast<std::uint32_t>(screen.pixel({2 * p.x, 2 * p.y}))); }

    test::Stage stage;
    Window room{stage.platform, "Room", "", {300, 200}, Frame::fixed};
    Panel floor{&room.root(), {0, 0, 300, 200}, red};
    Panel lamp{&room.root(), {0, 0, 10, 10}, green};
    Panel table{&room.root(), {140, 100, 10, 10}, green};
    Window dialog{stage.platform, "Dialog", "Title", {100, 60}, Frame::dialog};
    Panel paper{&dialog.root(), {0, 0, 100, 60}, green};
    Bitmap screen{{600, 400}};
    Scene scene;
};

constexpr Rect client{100, 79, 100, 60};  // its frame takes 22 pixels above and 3 below

TEST(Scene, DrawsAFrameRoundWhatStandsAbove) {
    const Shown shown;
    EXPECT_EQ(shown.at({50, 100}), red);
    EXPECT_EQ(shown.at({client.x, client.y}), green);
    EXPECT_EQ(shown.at({client.right() - 1, client.bottom() - 1}), green);
    EXPECT_EQ(shown.at({client.x - 1, client.y + 10}), look::face);
    EXPECT_EQ(shown.at({client.x - 3, client.y + 10}), look::highlight);
    EXPECT_EQ(shown.at({client.right() + 2, client.y + 10}), look::darkShadow);
    EXPECT_EQ(shown.at({client.x - 4, client.y + 10}), red);
    EXPECT_EQ(shown.at({client.x + 60, client.y - 10}), look::selection);
    const Rect box = closeBox(client, Frame::dialog);
    EXPECT_EQ(shown.at({box.x + 2, box.y + 7}), look::face);
    EXPECT_EQ(shown.at({box.x + 7, box.y + 6}), look::text);
}

TEST(Scene, PaintsOnlyWhatHasChangedAndCanBeSeen) {
    Shown shown;
    EXPECT_FALSE(shown.scene.stale());
    EXPECT_TRUE(shown.paint().empty());

    shown.lamp.setVisible(false);
    EXPECT_TRUE(shown.scene.stale());
    EXPECT_EQ(shown.paint(), (Rect{0, 0, 20, 20}));
    EXPECT_EQ(shown.at({5, 5}), red);

    // Behind the dialog.
    shown.table.setVisible(false);
    EXPECT_TRUE(shown.paint().empty());
    EXPECT_EQ(shown.at({145, 105}), green);
    EXPECT_FALSE(shown.scene.stale());

    shown.scene.pressCloseBox(true);
    EXPECT_EQ(shown.paint(), shown.screen.bounds());
}

TEST(Scene, WhatWasCoveredIsSeenAgain) {
    Shown shown;
    shown.table.setVisible(false);
    shown.paint();
    shown.scene.closed(shown.dialog);
    shown.scene.layOut({{600, 400}, Enlarging::whole});
    shown.paint();
    for (const Point p : {Point{145, 105}, client.at(), Point{client.x - 2, client.y - 20}})
        EXPECT_EQ(shown.at(p), red);
}

TEST(Scene, ADraggedWindowStaysWhole) {
    Shown shown;
    shown.scene.dragTop({-1000, -1000}, {5, -10});
    shown.paint();
    EXPECT_EQ(shown.at({0, 50}), look::highlight);
    EXPECT_EQ(shown.at({3, 22}), green);
    EXPECT_EQ(shown.at({145, 105}), green);  // the table below
    EXPECT_EQ(shown.scene.placeAt({2 * 50, 2 * 10}), Place::title);
    EXPECT_EQ(shown.scene.inTop({2 * 3, 2 * 22}), (Point{0, 0}));
}

}  // namespace
}  // namespace zentrox::sdl
