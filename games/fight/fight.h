// Prügel, the fight against Brokan told in still pictures.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the window modally. `Übergabe` holds "zaubertrank" before, in any case, if Velmix may use the potion; it is
// true afterwards if he has won, else false. A picture that is missing is told in a message box as soon as it is
// needed, and the game counts as lost.
void PrügelZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
