// PISpiel, typing the digits of pi against the clock.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the window modally. `Übergabe` tells afterwards whether the 40th character was reached. A file of digits
// that is missing or empty is told in a message box, and the game counts as lost.
void PIZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
