// HDW, the quiz about capitals.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the window modally. `Übergabe` is true afterwards if four questions in a row were answered right, else
// false. A question file that is missing or holds no question is told in a message box, and the game counts as
// lost.
void HDWZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
