// The endings that an author has named in a source: `// ende: gut` above a line, or behind it.
#pragma once

#include <map>
#include <string>

#include "tools/story/sourcefiles.h"
#include "tools/story/story.h"

namespace zentrox::prove {

struct Mark {
    std::string name;  // UTF-8
};

// By file and line of the first instruction on the marked line or below it. Compiled data has none.
using Marks = std::map<std::pair<int, int>, Mark>;
Marks endingMarks(const story::Story& story, story::SourceFiles& files);

}  // namespace zentrox::prove
