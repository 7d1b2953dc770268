// How the story's texts are shown. As it stands here: as ever.
#pragma once

#include "platform/values/text.h"

namespace zentrox {

struct Textart {
    bool sofort = false;  // the band stands at once, and is gone at once
    int Prozent = 100;    // how large the letters are
    Text Schrift;         // a family in place of the usual one, if it is not empty
    Text Name;            // who speaks; put before the first line, if it is not empty

    bool wieImmer() const { return Prozent == 100 && Schrift.empty() && Name.empty(); }
};

}  // namespace zentrox
