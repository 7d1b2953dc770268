// Jump: one figure runs and jumps through one long level, past enemies and pits, to its end on the right.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the game modally. `Übergabe` is true if it was won, false if it was lost or if a picture can't be used,
// which a box tells; closed before its end, the game leaves it as it was.
void JumpZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
