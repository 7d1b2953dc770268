// Reads sources of a story.
#pragma once

#include <filesystem>
#include <optional>

#include "platform/bitmap.h"
#include "tools/story/finding.h"

namespace zentrox::story {

// Where sources and the pictures of areas come from.
class SourceFiles {
public:
    virtual ~SourceFiles() = default;
    // The whole file; nothing if it can't be read.
    virtual std::optional<std::string> read(const std::filesystem::path& path);
    virtual std::optional<Bitmap> picture(const std::filesystem::path& path);
};

// Compiles all sources into one story. A story with `broken` findings may lack what could not be compiled.
Story parseSources(const std::vector<std::filesystem::path>& sources, SourceFiles& files, Findings& findings);

// The same for one source in memory, whose includes and pictures come from `files`.
Story parseSource(std::string_view utf8, const std::string& name, SourceFiles& files, Findings& findings);

}  // namespace zentrox::story
