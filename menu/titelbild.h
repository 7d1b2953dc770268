// The title picture, which is part of the program.
#pragma once

#include "platform/picture/bitmap.h"

namespace zentrox {

// 501 by 121 pixels.
Bitmap Titelbild();

}  // namespace zentrox
