// The green wave at the right of the menu.
#pragma once

#include "platform/window/surface.h"

namespace zentrox {

// Draws it at a phase, in place of the one before.
void WelleZeichnen(Surface& fläche, float phase);

}  // namespace zentrox
