// What types itself in the menu. In a page "|" ends a line; the two blanks at its start are skipped.
#pragma once

#include <vector>

#include "engine/state/titel.h"

namespace zentrox {

using Hilfetexte = std::vector<Text>;

// The pages beside the main screen, or beside the bonus screen: the story's, or else the game's own.
Hilfetexte MenuTexteFür(bool bonus, const Titel& titel);

}  // namespace zentrox
