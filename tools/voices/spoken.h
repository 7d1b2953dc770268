// What a text of the game sounds like.
#pragma once

#include "tools/voices/table.h"

namespace zentrox::voices {

// The colour of the first line that has one, else '-'.
char colourOf(TextView text);

// The text as one line for the speaking machine: without colours, line ends and quotes, with the replacements of
// the table, years as one says them, and what is written in capitals throughout in small letters.
Text spoken(TextView text, const std::vector<Replacement>& words);

}  // namespace zentrox::voices
