// Letters of the comforts' own windows, as large as the player wants them and as their place allows.
#pragma once

#include "platform/platform.h"

namespace zentrox {

// A length in pixels that is `usual` with letters as ever, and `twice` with letters of twice their size.
inline int grown(const Platform& platform, int usual, int twice) {
    return usual + (twice - usual) * (platform.boxPercent - 100) / 100;
}

// The largest font, from that of boxes down to the usual one, in which `text`, wrapped, stands whole in `room`; the
// usual one if none does.
FontSpec fittingFont(const Platform& platform, TextView text, Size room);

}  // namespace zentrox
