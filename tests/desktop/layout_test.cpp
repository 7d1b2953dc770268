// Where the game's windows stand in the native one.
#include "platform/sdl/layout.h"

#include <gtest/gtest.h>

namespace zentrox::sdl {
namespace {

constexpr Size roomLeast{640, 483};

Tenant room(Size client = roomLeast) {
    return {client, roomLeast, Frame::sizable, {}};
}
Tenant window(Size client, Frame frame) {
    return {client, {1, 1}, frame, {}};
}

TEST(Layout, TheBottommostWindowFillsItsGround) {
    const Ground windowed{{1280, 966}, Enlarging::whole, 2};
    EXPECT_EQ(baseClient(windowed, room()), roomLeast);
    const Layout out = layOut(windowed, {room()});
    EXPECT_EQ(out.scale, 2);
    EXPECT_EQ(out.corner, (Point{0, 0}));
    EXPECT_EQ(out.clients.at(0), (Rect{0, 0, 640, 483}));

    // A sizable one grows with it, a fixed one stands in its middle.
    const Ground full{{1920, 1080}, Enlarging::whole};
    EXPECT_EQ(baseClient(full, room()), (Size{960, 540}));
    EXPECT_EQ(layOut(full, {window({501, 397}, Frame::fixed)}).clients.at(0), (Rect{229, 71, 501, 397}));
}

TEST(Layout, FittingModesFillTheScreen) {
    struct Case {
        Size screen;
        Size client;
    };
    for (const Case& c :
         {Case{{1366, 768}, {859, 483}}, Case{{1920, 1080}, {858, 483}}, Case{{3840, 2160}, {858, 483}},
          Case{{1024, 768}, {644, 483}}, Case{{768, 1366}, {640, 1138}}}) {
        for (const Enlarging how : {Enlarging::sharp, Enlarging::smooth}) {
            const Ground ground{c.screen, how};
            EXPECT_EQ(baseClient(ground, room()), c.client) << c.screen.w;
            const Layout out = layOut(ground, {room(c.client)});
            EXPECT_LE(out.canvas.w * out.scale, c.screen.w + 1);
            EXPECT_LE(out.canvas.h * out.scale, c.screen.h + 1);
        }
    }
}

// On every screen, in every mode, with any window on top: all of it is there, its frame included.
TEST(Layout, NothingIsCutOff) {
    const std::vector<Tenant> games{window({640, 480}, Frame::fixed),  window({649, 480}, Frame::thin),
                                    window({413, 463}, Frame::fixed),  window({640, 460}, Frame::none),
                                    window({396, 269}, Frame::dialog), window({900, 700}, Frame::dialog)};
    for (const Size screen : {Size{640, 480}, Size{800, 480}, Size{1024, 768}, Size{1366, 768}, Size{1920, 1080},
                              Size{3840, 2160}, Size{768, 1366}})
        for (const Enlarging how : {Enlarging::whole, Enlarging::sharp, Enlarging::smooth})
            for (const Tenant& game : games) {
                const Ground ground{screen, how};
                const Layout out = layOut(ground, {room(baseClient(ground, room())), game});
                const Rect outer = outerArea(out.clients.at(1), game.frame);
                EXPECT_EQ(intersection(outer, {{0, 0}, out.canvas}), outer) << screen.w << ' ' << game.client.w;
                EXPECT_LE(out.corner.x + out.canvas.w * out.scale, screen.w + 1);
                EXPECT_LE(out.corner.y + out.canvas.h * out.scale, screen.h + 1);
            }
}

TEST(Layout, WindowsStandInTheMiddleOfTheirOwnerUntilTheyAreMoved) {
    const Ground ground{{640, 483}, Enlarging::whole, 1};
    const Tenant dialog = window({396, 269}, Frame::dialog);
    Tenant box = window({100, 60}, Frame::dialog);
    const Layout out = layOut(ground, {room(), dialog, box});
    EXPECT_EQ(outerArea(out.clients.at(1), Frame::dialog), (Rect{119, 94, 402, 294}));
    EXPECT_EQ(out.clients.at(2).x + 50, out.clients.at(1).x + 198);

    // Dragged beyond the edge it stays whole.
    box.put = Point{-5000, 5000};
    const Rect moved = outerArea(layOut(ground, {room(), dialog, box}).clients.at(2), Frame::dialog);
    EXPECT_EQ(moved.x, 0);
    EXPECT_EQ(moved.bottom(), 483);
}

// The native window was made larger for a game: the room stays at its corner, so that its picture does not move.
TEST(Layout, AStretchedGroundLeavesTheBottommostWindowInItsCorner) {
    const std::vector<Tenant> both{room(), window({640, 480}, Frame::fixed)};
    EXPECT_EQ(needed(both), (Size{646, 505}));
    const Layout out = layOut({{1292, 1010}, Enlarging::whole, 2, true}, both);
    EXPECT_EQ(out.scale, 2);
    EXPECT_EQ(out.clients.at(0), (Rect{0, 0, 640, 483}));
    EXPECT_EQ(outerArea(out.clients.at(1), Frame::fixed), (Rect{0, 0, 646, 505}));
}

TEST(Layout, TellsThePartsOfAFrame) {
    const Rect client{100, 100, 200, 150};
    const auto at = [&](Point p, Frame frame) { return placeOf(p, client, frame, true); };
    EXPECT_EQ(at({100, 100}, Frame::dialog), Place::client);
    EXPECT_EQ(at({120, 90}, Frame::dialog), Place::title);
    EXPECT_EQ(at({290, 90}, Frame::dialog), Place::closeBox);
    EXPECT_EQ(at({98, 200}, Frame::dialog), Place::edge);
    EXPECT_EQ(at({90, 200}, Frame::dialog), Place::outside);
    EXPECT_EQ(at({120, 90}, Frame::thin), Place::outside);
    EXPECT_EQ(at({99, 120}, Frame::thin), Place::edge);
    EXPECT_EQ(at({99, 120}, Frame::none), Place::outside);
    EXPECT_EQ(placeOf({290, 90}, client, Frame::fixed, false), Place::outside);
}

}  // namespace
}  // namespace zentrox::sdl
