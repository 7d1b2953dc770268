#include "games/bruhks/bruhksbilder.h"

namespace zentrox {

// Made by the build from drawings: three bytes a pixel, red first, rows from top to bottom.
extern const unsigned char BruhksGrundPixel[];
extern const unsigned int BruhksGrundBytes;
extern const unsigned char BruhkObenPixel[];
extern const unsigned int BruhkObenBytes;
extern const unsigned char BruhkUntenPixel[];
extern const unsigned int BruhkUntenBytes;

namespace {

Bitmap entpackt(Size größe, const unsigned char* von, unsigned int bytes) {
    Bitmap bild(größe);
    if (bytes != 3U * größe.w * größe.h) return bild;
    for (int y = 0; y < größe.h; ++y)
        for (int x = 0; x < größe.w; ++x, von += 3) bild.setPixel({x, y}, Colour(von[0], von[1], von[2]));
    return bild;
}

}  // namespace

Bitmap BruhksHintergrund() {
    return entpackt({640, 440}, BruhksGrundPixel, BruhksGrundBytes);
}

Bitmap BruhkBild(int phase) {
    constexpr Size größe{64, 48};
    return phase == 0 ? entpackt(größe, BruhkObenPixel, BruhkObenBytes)
                      : entpackt(größe, BruhkUntenPixel, BruhkUntenBytes);
}

}  // namespace zentrox
