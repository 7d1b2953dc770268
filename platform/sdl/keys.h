// What the keyboard of the window system says, in the game's words.
#pragma once

#include <SDL.h>

#include <array>
#include <cstdint>

namespace zentrox::sdl {

// The virtual code of a key, 0 for one that the game can't name. Letters and digits go by what the key is labelled
// with, the others by where they lie.
int virtualCode(const SDL_Keysym& key);

// The character that a key gives without being a letter, such as Enter or Ctrl+C; 0 for none.
char controlCharacter(const SDL_Keysym& key);

// All keys by virtual code, 128 for a held one.
std::array<std::uint8_t, 256> heldKeys();

}  // namespace zentrox::sdl
