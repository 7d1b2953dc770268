// Reads titel.txt, in which a story says how it is called and what stands in the menu and the credits.
#pragma once

#include "engine/state/titel.h"
#include "platform/machine/files.h"

namespace zentrox {

constexpr TextView Titeldatei = "titel.txt";

struct Titelmangel {
    int zeile;  // from 1 on
    Text text;
};

// Lines of UTF-8: "Name: Text" each, then pages under "[Hilfe]", "[Bonushilfe]" and "[Abspann]". A line that can't
// be used is passed over, and told in `mängel` where that is given.
Titel TitelLesen(std::string_view utf8, std::vector<Titelmangel>* mängel = nullptr);

// That of a story; all empty where it has none.
Titel TitelLesen(const Files& files);

// True for one to forty small letters, digits and dashes, none of those at an end.
bool istKennung(TextView text);

}  // namespace zentrox
