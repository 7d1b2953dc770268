// What a proof has found, for people, for machines, and as a picture.
#pragma once

#include "tools/prove/prove.h"

namespace zentrox::prove {

// German, UTF-8: the findings as lines, then what is proved and over how much. `walks` is where the walks were
// written, empty if nowhere.
std::string asText(const story::Story& story, const Report& report, const std::string& walks);
// States, steps, the ways to the endings.
std::string statistics(const Report& report);
// The rooms and what leads from one to the other, for Graphviz.
std::string asGraph(const Report& report);
// One object, as it is described on the page of the checker.
std::string asJson(const story::Story& story, const Report& report);

// The names of the files of the walks below a directory, of the endings and then of the dead ends.
std::vector<std::pair<std::string, std::string>> walkFiles(const story::Story& story, const Report& report);

}  // namespace zentrox::prove
