// Jump: one figure runs and jumps through one long level, past enemies and pits, to its end on the right.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the game modally. `Übergabe` is true afterwards if it was won, else false. A picture that can't be used is
// told in a box, and the game counts as lost.
void JumpZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
