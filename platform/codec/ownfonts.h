// Two plain fonts that are a part of the program, for a machine that has none: what code page 1252 has of letters.
// The build takes them from installed ones, `zentrox_embed_font` in cmake/zentrox.cmake.
#pragma once

#include <span>

namespace zentrox {

extern const std::span<const unsigned char> OwnLetters;
extern const std::span<const unsigned char> OwnCells;  // all of one width

}  // namespace zentrox
