// The pictures of Bruhks, which are part of the program.
#pragma once

#include "platform/picture/embedded.h"

namespace zentrox {

extern const EmbeddedPicture BruhksGrund;  // 640 by 440 pixels
// The two phases of a wing beat, 64 by 48 pixels, black around the figure.
extern const EmbeddedPicture BruhkOben;
extern const EmbeddedPicture BruhkUnten;

}  // namespace zentrox
