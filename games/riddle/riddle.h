// Form2, the riddle of the donkey.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the window modally. `Übergabe` is true afterwards if the riddle was solved, else false.
void Form2Zeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
