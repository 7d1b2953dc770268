// What the window system tells, in the game's words: input for the topmost window of the game.
#pragma once

#include <SDL.h>

#include <deque>
#include <functional>
#include <optional>

#include "platform/sdl/cursors.h"
#include "platform/sdl/gamepad.h"
#include "platform/sdl/keys.h"
#include "platform/sdl/screen.h"
#include "platform/window/backend.h"

namespace zentrox::sdl {

class Events {
public:
    Events(Screen& screen, Cursors& cursors) : screen_(screen), cursors_(cursors) {}

    // The next thing that the game should be told, nothing if the window system has told nothing. Throws
    // `ProgramEnd` when the process is asked to end.
    std::optional<Input> next();
    bool pending() const { return !pending_.empty(); }
    // True if one of the things that wait to be told is a wish to close the topmost window.
    bool closeWanted();

    // Another window is the topmost one now.
    void windowsChanged();
    // The native window has, or the game's windows have, another size.
    void sizesChanged();
    void showPointer();

    // The game shall stand still from now on, or go on: the native window was minimised, or if the player wants
    // that the keyboard went to another program.
    std::function<void(bool stands)> onStanding;
    // Takes game pads as keyboards.
    void usePad(bool on) { pad_.use(on); }
    // Fingers: a tap is a click, a long one a click of the right button, a drag a drag. Otherwise the window
    // system's own likeness of a mouse holds, which knows no right button.
    void useTouch(bool on);
    void setPausesAway(bool on) { pausesAway_ = on; }

    // Takes what is meant for another native window, see `Desktop::onForeign`.
    std::function<bool(const SDL_Event&)> foreign;

    // Keys that are down, or were since this was asked last.
    std::array<std::uint8_t, 256> keys();

private:
    void take(const SDL_Event& event);
    void takeWindow(const SDL_WindowEvent& event);
    void takeMove(const SDL_MouseMotionEvent& event);
    void takeDown(const SDL_MouseButtonEvent& event);
    void takeUp(const SDL_MouseButtonEvent& event);
    void takeWheel(const SDL_MouseWheelEvent& event);
    void takeKey(const SDL_KeyboardEvent& event);
    void takePadKey(int code, bool down);
    void takeFinger(const SDL_TouchFingerEvent& event);
    void fingerButton(Uint32 type, Uint8 button, Point at);
    void fingerMove(Point at, Uint32 held);
    void tellStanding();
    bool takeOwnKey(const SDL_KeyboardEvent& event);
    void takeText(const char* utf8);
    void release(Button button, Point at);
    void releaseLost(Uint32 held, Point at);
    void pressCharacter(char character);

    Screen& screen_;
    Cursors& cursors_;
    std::deque<Input> pending_;
    Taps taps_;
    Uint32 told_ = 0;            // buttons whose press the game was told, and whose release it will be
    std::optional<Point> grip_;  // where a title bar is held, in pixels of the client area
    bool closeHeld_ = false;     // the close box was pressed and the button is still down
    bool overClient_ = true;     // the pointer is over the topmost window's client area
    int clicksBefore_ = 0;       // clicks that another window has had of the present run of clicks
    int clicks_ = 0;
    struct Finger {
        SDL_FingerID id = 0;
        Point at;  // where it came down
        Uint32 since = 0;
        bool drags = false;
    };
    std::optional<Finger> finger_;
    GamePad pad_{[this](int code, bool down) { takePadKey(code, down); }};
    bool minimised_ = false;
    bool away_ = false;  // the keyboard is another program's
    bool pausesAway_ = false;
    bool touches_ = false;
};

}  // namespace zentrox::sdl
