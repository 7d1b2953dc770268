// Bruhks: 20 seconds to click 21 creatures that glide over a picture.
#pragma once

#include "engine/state/zustand.h"
#include "media/medien.h"
#include "platform/platform.h"

namespace zentrox {

// Shows the game modally and leaves in `Übergabe` whether it was won.
void BruhksZeigen(Platform& platform, Zustand& zustand, Medien& medien);

}  // namespace zentrox
