// What types itself in the menu. In a page "|" ends a line; the two blanks at its start are skipped.
#pragma once

#include <array>

#include "platform/values/text.h"

namespace zentrox {

constexpr int Hilfeseiten = 2;
using Hilfetexte = std::array<Text, Hilfeseiten>;

// The pages beside the main screen, or beside the bonus screen.
Hilfetexte MenuTexteFür(bool bonus);

}  // namespace zentrox
