#include "platform/picture/embedded.h"

namespace zentrox {

Bitmap unpacked(const EmbeddedPicture& picture) {
    Bitmap bitmap(picture.size);
    const unsigned char* from = picture.pixels;
    for (int y = 0; y < picture.size.h; ++y)
        for (int x = 0; x < picture.size.w; ++x, from += 3)
            bitmap.setPixel({x, y}, Colour(from[0], from[1], from[2]));
    return bitmap;
}

}  // namespace zentrox
