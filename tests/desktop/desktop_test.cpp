// The desktop with a window system that shows nothing: what its events become.
#include "platform/sdl/desktop.h"

#include <gtest/gtest.h>

#include <thread>

#include "platform/platform.h"
#include "platform/values/keys.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"

namespace zentrox::sdl {
namespace {

struct Stage {
    Stage() { SDL_setenv("SDL_VIDEODRIVER", "dummy", 1); }

    test::TempDirectory directory;
    Files files{directory.path()};
    Desktop desktop{files, {"zentrox"}};
    test::FakeBackend clock;
    test::FakeFonts fonts;
    test::FakeSound sound{clock};
    Platform platform{desktop, fonts, sound, files};

    // A room of 640 by 483 with a dialog over it; the display has 1024 by 768.
    Window room{platform, "Room", "", {640, 483}, Frame::sizable};
    Window dialog{platform, "Dialog", "", {200, 100}, Frame::dialog};

    void open() {
        room.minimum = {640, 483};
        room.open();
        dialog.open();
        drain();
    }
    void drain() {
        while (desktop.nextInput()) {
        }
    }
    // The inputs that come of events already pushed.
    std::vector<Input> inputs() {
        std::vector<Input> all;
        while (const auto input = desktop.nextInput()) all.push_back(*input);
        return all;
    }
    static void push(SDL_Event event) { SDL_PushEvent(&event); }
    static void button(Uint32 type, int x, int y, int clicks = 1) {
        SDL_Event event{};
        event.button.type = type;
        event.button.button = SDL_BUTTON_LEFT;
        event.button.clicks = static_cast<Uint8>(clicks);
        event.button.x = x;
        event.button.y = y;
        push(event);
    }
    static void down(int x, int y, int clicks = 1) { button(SDL_MOUSEBUTTONDOWN, x, y, clicks); }
    static void up(int x, int y) { button(SDL_MOUSEBUTTONUP, x, y); }
    static void move(int x, int y, Uint32 held = 0) {
        SDL_Event event{};
        event.motion.type = SDL_MOUSEMOTION;
        event.motion.state = held;
        event.motion.x = x;
        event.motion.y = y;
        push(event);
    }
    static void window(Uint8 what) {
        SDL_Event event{};
        event.window.type = SDL_WINDOWEVENT;
        event.window.event = what;
        push(event);
    }
    static void tap(SDL_Scancode place, SDL_Keycode label) {
        for (const Uint32 type : {SDL_KEYDOWN, SDL_KEYUP}) {
            SDL_Event event{};
            event.key.type = type;
            event.key.keysym = {place, label, KMOD_NONE, 0};
            push(event);
        }
    }
};

// The dialog's client area stands at (220, 201): the middle of the room, its frame taken into account.
constexpr Point client{220, 201};

TEST(Desktop, GivesTheTopmostWindowWhatIsMeantForIt) {
    Stage stage;
    stage.open();
    Stage::move(client.x + 5, client.y + 7);
    Stage::down(client.x + 5, client.y + 7);
    Stage::up(10, 10);  // let go outside
    const auto all = stage.inputs();
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0].kind, Input::Kind::move);
    EXPECT_EQ(all[1].kind, Input::Kind::press);
    EXPECT_EQ(all[1].at, (Point{5, 7}));
    EXPECT_EQ(all[2].kind, Input::Kind::release);
    EXPECT_EQ(all[2].at, (Point{10, 10} - client));

    // The window below waits: neither its picture nor the frame above it takes the pointer.
    Stage::move(30, 30);
    Stage::down(30, 30);
    Stage::up(30, 30);
    Stage::down(client.x + 1, client.y - 2);
    Stage::up(client.x + 1, client.y - 2);
    EXPECT_TRUE(stage.inputs().empty());
}

TEST(Desktop, AReleaseComesWhateverHappensToTheWindows) {
    Stage stage;
    stage.open();
    Stage::down(client.x + 5, client.y + 5);
    ASSERT_EQ(stage.inputs().size(), 1U);
    stage.dialog.close();
    Stage::up(300, 40);
    auto all = stage.inputs();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].kind, Input::Kind::release);
    EXPECT_EQ(all[0].at, (Point{300, 40}));

    // One that the window manager kept to itself is seen from the next move.
    Stage::down(50, 50);
    Stage::move(60, 60);
    all = stage.inputs();
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[1].kind, Input::Kind::release);
    EXPECT_EQ(all[2].button, Button::none);
}

TEST(Desktop, ClicksAreCountedForEachWindow) {
    Stage stage;
    stage.open();
    Stage::down(300, 240, 1);
    stage.inputs();
    stage.dialog.close();
    Stage::up(300, 240);
    Stage::down(300, 240, 2);
    Stage::up(300, 240);
    Stage::down(300, 240, 3);
    const auto all = stage.inputs();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[1].clicks, 1);
    EXPECT_EQ(all[3].clicks, 2);
}

TEST(Desktop, TheCloseBoxesAskTheTopmostWindow) {
    Stage stage;
    stage.open();
    const Point box{client.x + 200 - 10, client.y - 10};
    Stage::down(box.x, box.y);
    Stage::move(30, 30, SDL_BUTTON_LMASK);
    Stage::up(30, 30);
    EXPECT_TRUE(stage.inputs().empty());
    Stage::down(box.x, box.y);
    Stage::up(box.x, box.y);
    auto all = stage.inputs();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].kind, Input::Kind::close);
    Stage::window(SDL_WINDOWEVENT_CLOSE);
    all = stage.inputs();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].kind, Input::Kind::close);
}

TEST(Desktop, ATitleBarCanBeDragged) {
    Stage stage;
    stage.open();
    Stage::down(client.x + 20, client.y - 10);
    Stage::move(client.x + 60, client.y - 40, SDL_BUTTON_LMASK);
    Stage::up(client.x + 60, client.y - 40);
    EXPECT_TRUE(stage.inputs().empty());
    Stage::down(client.x + 40, client.y - 30);
    const auto all = stage.inputs();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].at, (Point{0, 0}));
}

// Full screen under an open dialog reaches the room, and the dialog stands in its new middle.
TEST(Desktop, FullScreenGivesTheBottommostWindowMoreRoom) {
    Stage stage;
    stage.open();
    Stage::tap(SDL_SCANCODE_F11, SDLK_F11);
    const auto all = stage.inputs();
    ASSERT_FALSE(all.empty());
    EXPECT_EQ(all.back().kind, Input::Kind::resize);
    EXPECT_EQ(all.back().size, (Size{1024, 768}));
    EXPECT_TRUE(stage.desktop.fullScreen());
    stage.room.resizeClient(all.back().size);
    stage.drain();
    Stage::down(client.x + 192, client.y + 142);
    const auto press = stage.inputs();
    ASSERT_EQ(press.size(), 1U);
    EXPECT_EQ(press[0].at, (Point{0, 0}));
}

TEST(Desktop, TheKeysOfThePictureAreNotTheGames) {
    Stage stage;
    stage.open();
    for (const Enlarging how : {Enlarging::sharp, Enlarging::smooth, Enlarging::whole}) {
        Stage::tap(SDL_SCANCODE_F8, SDLK_F8);
        for (const Input& input : stage.inputs()) EXPECT_EQ(input.kind, Input::Kind::resize);
        EXPECT_EQ(stage.desktop.enlarging(), how);
    }
}

TEST(Desktop, AKeyTappedBetweenTwoLooksIsHeldOnce) {
    Stage stage;
    stage.open();
    Stage::tap(SDL_SCANCODE_P, SDLK_p);
    stage.inputs();
    EXPECT_EQ(stage.desktop.keys()['P'], 128);
    EXPECT_EQ(stage.desktop.keys()['P'], 0);
    // It was meant for the window that stood there.
    Stage::tap(SDL_SCANCODE_P, SDLK_p);
    stage.inputs();
    stage.dialog.close();
    EXPECT_EQ(stage.desktop.keys()['P'], 0);
}

TEST(Desktop, MinimisedTheClockStandsStill) {
    Stage stage;
    std::vector<bool> told;
    stage.desktop.onPause = [&](bool paused) { told.push_back(paused); };
    stage.open();
    Stage::window(SDL_WINDOWEVENT_MINIMIZED);
    stage.inputs();
    const Milliseconds then = stage.desktop.clock();
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_EQ(stage.desktop.clock(), then);
    Stage::window(SDL_WINDOWEVENT_RESTORED);
    stage.inputs();
    EXPECT_LE(stage.desktop.clock(), then + 25);
    EXPECT_EQ(told, (std::vector<bool>{true, false}));
}

// A finger on the dialog; the display's window is 640 by 483.
void finger(Uint32 type, Point at, Uint32 when, SDL_FingerID id = 1) {
    SDL_Event event{};
    event.tfinger.type = type;
    event.tfinger.timestamp = when;
    event.tfinger.fingerId = id;
    event.tfinger.x = (static_cast<float>(at.x) + 0.5F) / 640;
    event.tfinger.y = (static_cast<float>(at.y) + 0.5F) / 483;
    SDL_PeepEvents(&event, 1, SDL_ADDEVENT, 0, 0);  // with its own time
}

std::vector<std::pair<Input::Kind, Button>> kindsOf(const std::vector<Input>& all) {
    std::vector<std::pair<Input::Kind, Button>> kinds;
    for (const Input& input : all) kinds.emplace_back(input.kind, input.button);
    return kinds;
}

TEST(Desktop, AFingerTapsLooksAndDrags) {
    using Kind = Input::Kind;
    Stage stage;
    stage.open();
    const Point place = client + Point{20, 20};
    finger(SDL_FINGERDOWN, place, 1000);
    finger(SDL_FINGERUP, place, 1100);
    EXPECT_TRUE(stage.inputs().empty()) << "out of the box the window system's mouse is all";

    stage.desktop.useTouch(true);
    using Kinds = std::vector<std::pair<Kind, Button>>;
    finger(SDL_FINGERDOWN, place, 1000);
    finger(SDL_FINGERDOWN, place + Point{50, 0}, 1010, 2);  // a second one is nobody's
    finger(SDL_FINGERUP, place + Point{50, 0}, 1020, 2);
    finger(SDL_FINGERUP, place, 1100);
    EXPECT_EQ(kindsOf(stage.inputs()),
              (Kinds{{Kind::move, Button::none}, {Kind::press, Button::left}, {Kind::release, Button::left}}));
    finger(SDL_FINGERDOWN, place, 2000);
    finger(SDL_FINGERMOTION, place + Point{3, 3}, 2300);  // no hand is quite still
    finger(SDL_FINGERUP, place, 2600);
    EXPECT_EQ(kindsOf(stage.inputs()),
              (Kinds{{Kind::move, Button::none}, {Kind::press, Button::right}, {Kind::release, Button::right}}));
    finger(SDL_FINGERDOWN, place, 3000);
    finger(SDL_FINGERMOTION, place + Point{40, 0}, 3100);
    finger(SDL_FINGERUP, place + Point{60, 0}, 3900);
    const auto drag = stage.inputs();
    EXPECT_EQ(kindsOf(drag), (Kinds{{Kind::move, Button::none},
                                    {Kind::press, Button::left},
                                    {Kind::move, Button::left},
                                    {Kind::release, Button::left}}));
    EXPECT_EQ(drag.at(1).at, (Point{20, 20})) << "a drag begins where the finger came down";
    EXPECT_EQ(drag.at(3).at, (Point{80, 20}));
    stage.desktop.useTouch(false);
}

TEST(Desktop, AVirtualPadIsAKeyboard) {
    Stage stage;
    stage.open();
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");  // nothing has the keyboard here
    stage.desktop.usePad(true);
    const int device = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, SDL_CONTROLLER_AXIS_MAX,
                                                 SDL_CONTROLLER_BUTTON_MAX, 0);
    ASSERT_GE(device, 0) << SDL_GetError();
    stage.drain();
    SDL_Joystick* const stick = SDL_JoystickOpen(device);
    ASSERT_NE(stick, nullptr);
    const auto codes = [&] {
        SDL_JoystickUpdate();
        std::vector<int> all;
        for (const Input& input : stage.inputs())
            if (input.code != 0) all.push_back(input.kind == Input::Kind::keyDown ? input.code : -input.code);
        return all;
    };
    SDL_JoystickSetVirtualButton(stick, SDL_CONTROLLER_BUTTON_A, 1);
    EXPECT_EQ(codes(), (std::vector<int>{key::enter}));
    EXPECT_EQ(stage.desktop.keys()[key::enter], 128);
    SDL_JoystickSetVirtualButton(stick, SDL_CONTROLLER_BUTTON_A, 0);
    EXPECT_EQ(codes(), (std::vector<int>{-key::enter}));
    SDL_JoystickSetVirtualAxis(stick, SDL_CONTROLLER_AXIS_LEFTX, -30000);
    EXPECT_EQ(codes(), (std::vector<int>{key::left}));
    SDL_JoystickSetVirtualAxis(stick, SDL_CONTROLLER_AXIS_LEFTX, -15000);
    EXPECT_TRUE(codes().empty()) << "held until it is nearly back";
    SDL_JoystickSetVirtualAxis(stick, SDL_CONTROLLER_AXIS_LEFTX, 0);
    EXPECT_EQ(codes(), (std::vector<int>{-key::left}));
    SDL_JoystickClose(stick);
    SDL_JoystickDetachVirtual(device);
    stage.desktop.usePad(false);
}

TEST(Desktop, AwayFromItsFocusItStandsStillIfThePlayerWants) {
    Stage stage;
    stage.open();
    std::vector<bool> paused;
    stage.desktop.onPause = [&](bool on) { paused.push_back(on); };
    Stage::window(SDL_WINDOWEVENT_FOCUS_LOST);
    stage.drain();
    EXPECT_TRUE(paused.empty());
    Stage::window(SDL_WINDOWEVENT_FOCUS_GAINED);
    stage.desktop.setPausesAway(true);
    Stage::window(SDL_WINDOWEVENT_FOCUS_LOST);
    Stage::window(SDL_WINDOWEVENT_EXPOSED);  // seen again, and still away
    stage.drain();
    const Milliseconds then = stage.desktop.clock();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(stage.desktop.clock(), then);
    Stage::window(SDL_WINDOWEVENT_FOCUS_GAINED);
    stage.drain();
    EXPECT_EQ(paused, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace zentrox::sdl
