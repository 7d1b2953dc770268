// Writes pictures and pointer icons in their plainest forms.
#pragma once

#include <string>

#include "platform/picture/bitmap.h"

namespace zentrox::story {

// The bytes of a bitmap file, 24 bits a pixel.
std::string bmpFile(const Bitmap& picture);
// The bytes of an icon file with one picture, 32 bits a pixel; where `picture` has the colour `clear` it is
// transparent. A side is at most 255 pixels.
std::string iconFile(const Bitmap& picture, Colour clear);

}  // namespace zentrox::story
