// What the keyboard of the window system says, in the game's words.
#pragma once

#include <SDL.h>

#include <array>
#include <cstdint>

namespace zentrox::sdl {

// The virtual code of a key, 0 for one that the game can't name. Letters and digits go by what the key is labelled
// with, on a layout without Latin letters by where they lie; the others by where they lie. The keypad gives digits
// with NumLock on and without the shift key, else its arrows.
int virtualCode(const SDL_Keysym& key);

// The character that a key gives without being a letter, such as Enter or Ctrl+C; 0 for none.
char controlCharacter(const SDL_Keysym& key);

using KeyStates = std::array<std::uint8_t, 256>;

// All keys by virtual code, 128 for a held one.
KeyStates heldKeys();

// Keys that were pressed and let go again between two looks at the keyboard. Who looks once a tick would miss them.
class Taps {
public:
    // `now` in milliseconds.
    void note(int code, std::uint64_t now);
    // Marks each one as held, once. What was tapped long ago was not meant for who looks now.
    void addTo(KeyStates& keys, std::uint64_t now);
    void forget() { pressedAt_.fill(0); }

private:
    std::array<std::uint64_t, 256> pressedAt_{};  // 0 for none
};

}  // namespace zentrox::sdl
