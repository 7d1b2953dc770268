// The title picture, which is part of the program.
#pragma once

#include "platform/picture/embedded.h"

namespace zentrox {

// 501 by 121 pixels.
extern const EmbeddedPicture Titelbild;

}  // namespace zentrox
