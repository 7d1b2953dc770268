#include "menu/titelbild.h"

namespace zentrox {

// Made by the build from titel.svg: three bytes a pixel, red first, rows from top to bottom.
extern const unsigned char TitelbildPixel[];
extern const unsigned int TitelbildBytes;

namespace {

constexpr Size Größe{501, 121};

}  // namespace

Bitmap Titelbild() {
    Bitmap bild(Größe);
    if (TitelbildBytes != 3U * Größe.w * Größe.h) return bild;
    const unsigned char* von = TitelbildPixel;
    for (int y = 0; y < Größe.h; ++y)
        for (int x = 0; x < Größe.w; ++x, von += 3) bild.setPixel({x, y}, Colour(von[0], von[1], von[2]));
    return bild;
}

}  // namespace zentrox
