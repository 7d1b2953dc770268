// A text of the story as it is shown: its lines, each with its colour.
#pragma once

#include <vector>

#include "platform/values/text.h"

namespace zentrox {

struct Textzeile {
    int Farbe = 15;  // see `Farbe16`
    TextView Inhalt;
};

// Parts a text at "#" and at its line ends, and takes the colour marks off: "$" and a hexadecimal digit at the
// front of a line. A line without one is white, and so is one whose mark is no such digit. The lines are parts of
// `text`.
std::vector<Textzeile> TextzeilenVon(TextView text);

}  // namespace zentrox
