// Memory, the pairs game against Tirsa.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the window modally. `Übergabe` is one of the texts "W" for a win, "L" for a loss, "U" for a draw
// afterwards. A picture that is missing is told in a message box, and the game counts as lost.
void MemoryZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
