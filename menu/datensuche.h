// Where the data of the game lie: beside the program, or on a CD. Each directory is looked for by itself, so that a
// part of the data may be installed and the rest stay on the CD.
#pragma once

#include <filesystem>
#include <vector>

#include "engine/state/zustand.h"
#include "platform/machine/files.h"

namespace zentrox {

// Fills the eight paths of the state, each for a directory that need not be there, and makes the one for saved
// games. Gives the root of the CD with a backslash at its end: the last of `wurzeln` that holds the CD's mark;
// empty if none does. Nothing is reported.
Text DatenSuchen(Files& files, const std::vector<std::filesystem::path>& wurzeln, Zustand& z);

}  // namespace zentrox
