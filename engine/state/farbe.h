// The 16 fixed colours of the game.
#pragma once

#include "platform/values/geometry.h"

namespace zentrox {

// n from 0 to 15: 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 yellow, 7 light grey, 8 dark grey, 9 to 14
// the bright forms of 1 to 6, 15 white.
Colour Farbe16(int n);

}  // namespace zentrox
