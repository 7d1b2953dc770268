// What a machine has to do for the game: tell the time, hand in input, sleep, show pictures, start programs. There
// are two: the desktop, and the probe with no screen, no sound and a clock of its own.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/window/control.h"
#include "platform/window/window.h"

namespace zentrox {

// Milliseconds since some moment before the start; it never jumps.
using Milliseconds = std::int64_t;

// One thing that a person did, for the topmost window.
struct Input {
    enum class Kind { move, press, release, wheel, keyDown, keyUp, keyPress, resize, close };
    Kind kind = Kind::move;
    Point at;                      // move, press, release, wheel: in pixels of the client area
    Button button = Button::none;  // press, release; of a move the one held
    int clicks = 1;                // press
    int code = 0;                  // keyDown, keyUp: virtual code; wheel: lines, up positive
    bool repeat = false;           // keyDown: the keyboard repeats a held key
    bool lost = false;             // keyUp: nobody let it go, the keyboard went to another program
    bool shift = false;            // press, keyDown
    bool control = false;          // keyDown
    char character = 0;            // keyPress
    Size size;                     // resize: the new client area of the bottommost window
};

struct MessageBox;
class SoundDevice;

class Backend {
public:
    virtual ~Backend() = default;

    virtual Milliseconds clock() = 0;
    // The next thing that the topmost window should be told now; nothing if there is none.
    virtual std::optional<Input> nextInput() = 0;
    // Returns when the clock has reached `until`, or earlier when input may be there. Without `until` it waits for
    // input alone.
    virtual void sleep(std::optional<Milliseconds> until) = 0;
    // When the display shows the next picture, for loops that draw as often as they can.
    virtual Milliseconds nextFrame() = 0;

    // A window that has come to stand on top, or has gone.
    virtual void opened(Window& window) = 0;
    virtual void closed(Window& window) = 0;
    // Its title or its size is another one now.
    virtual void reshaped(Window& window) = 0;
    virtual void pointerChanged(Window& window) = 0;
    // Shows what is new in the windows. Called once a turn.
    virtual void present() = 0;
    // When `present` wants to be called again without anything happening; nothing if it does not.
    virtual std::optional<Milliseconds> presentDue() { return std::nullopt; }
    // Asked now and then by work that has gone on for long without a wait: true when a person wants the topmost
    // window closed.
    virtual bool wantsToClose() { return false; }
    virtual void messageBoxOpened(const MessageBox& /*box*/) {}

    // The state of all keys by virtual code; 128 in a byte is held.
    virtual std::array<std::uint8_t, 256> keys() = 0;
    // UTF-8.
    virtual std::string clipboard() = 0;
    virtual void setClipboard(const std::string& text) = 0;

    // A seed: the time of day on a desktop.
    virtual std::uint64_t seed() = 0;
    // Starts a program found in the search path, without a shell and without waiting; false if there is none.
    // Arguments are those of the system.
    virtual bool start(const std::vector<std::string>& command) = 0;
    // Starts this program anew, from its menu. The caller then ends itself.
    virtual void restart() = 0;
};

}  // namespace zentrox
