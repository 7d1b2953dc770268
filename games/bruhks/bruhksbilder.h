// The pictures of Bruhks, which are part of the program.
#pragma once

#include "platform/picture/bitmap.h"

namespace zentrox {

// 640 by 440 pixels.
Bitmap BruhksHintergrund();
// The two phases of a wing beat, 0 and 1, 64 by 48 pixels, black around the figure.
Bitmap BruhkBild(int phase);

}  // namespace zentrox
