// Sparks on a surface, pixel by pixel, without drawing anything else anew.
#pragma once

#include "games/sparks/funken.h"
#include "platform/window/surface.h"

namespace zentrox {

// Gives back the pixels that the sparks cover. The last one drawn goes first, so that overlapping sparks leave what
// was there before all of them.
void FunkenWeg(Surface& feld, const Funken& funken);

// Draws them, each over what was drawn before it, and keeps what it covers.
void FunkenHin(Surface& feld, Funken& funken);

}  // namespace zentrox
