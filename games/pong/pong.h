// Pong, the ball game against Kessa.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the window modally. `Übergabe` is true afterwards if a match was won in it, else false. A picture that is
// missing is told in a message box, and the game counts as lost.
void PongZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
