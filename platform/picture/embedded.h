// Pictures that are a part of the program. The build draws each from a file beside the code that shows it, and
// defines it under its name: `zentrox_embed` in cmake/zentrox.cmake.
#pragma once

#include "platform/picture/bitmap.h"

namespace zentrox {

struct EmbeddedPicture {
    Size size;
    const unsigned char* pixels;  // three bytes a pixel, red first, rows from top to bottom
};

Bitmap unpacked(const EmbeddedPicture& picture);

}  // namespace zentrox
