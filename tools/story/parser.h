// Reads sources of a story.
#pragma once

#include "tools/story/finding.h"
#include "tools/story/names.h"
#include "tools/story/sourcefiles.h"

namespace zentrox::story {

// Compiles all sources into one story. A story with `broken` findings may lack what could not be compiled. `known`
// are further sources of the same story: what they declare counts, what they hold is not compiled.
Story parseSources(const std::vector<std::filesystem::path>& sources, SourceFiles& files, Findings& findings,
                   const std::vector<std::filesystem::path>& known = {});

// The same, with what it was made from. The statements' places are those of `story`.
struct Parsed {
    Story story;
    Names names;
    std::vector<Source> sources;
};
Parsed parseAll(const std::vector<std::filesystem::path>& sources, SourceFiles& files, Findings& findings,
                const std::vector<std::filesystem::path>& known = {});

// The same for one source in memory, whose includes and pictures come from `files`.
Story parseSource(std::string_view utf8, const std::string& name, SourceFiles& files, Findings& findings);

}  // namespace zentrox::story
