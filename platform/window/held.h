// What is held down, and whose it is. An input belongs to the window and to the state of the game in which it
// began: once either is over, neither its release nor a key's repeats reach anybody.
#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "platform/window/control.h"

namespace zentrox {

class HeldInputs {
public:
    // A moment between two inputs.
    using Mark = std::uint64_t;
    Mark mark() const { return begun_; }
    // What is held down and began behind `since` is nobody's from now on; tells whether there was any.
    struct Lost {
        bool buttons = false;
        bool keys = false;
    };
    Lost disown(Mark since);

    void press(Button button) { buttons_[button] = Held{++begun_}; }
    // True if the release belongs to who got the press.
    bool release(Button button);
    // The same button, or none if it is not held or nobody's.
    Button owned(Button button) const;

    enum class Key { first, repeat, nobodys };
    // `repeat`: what the keyboard says of it. A key that is held already repeats, whatever it says. The code 0
    // stands for all keys that have none.
    Key keyDown(int code, bool repeat);
    // True if it belongs to who got the key.
    bool keyUp(int code);
    // False for a character that a key types which is nobody's.
    bool characterBelongs() const;

private:
    struct Held {
        Mark begun = 0;
        bool nobodys = false;
    };
    template <class Name>
    static bool disown(std::map<Name, Held>& held, Mark since);

    Mark begun_ = 0;
    std::map<Button, Held> buttons_;
    std::map<int, Held> keys_;
    std::optional<int> typing_;  // the key that went down last, while it is held
};

}  // namespace zentrox
