// Where sources and the pictures of areas come from.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/picture/bitmap.h"

namespace zentrox::story {

class SourceFiles {
public:
    virtual ~SourceFiles() = default;
    // The whole file; nothing if it can't be read.
    virtual std::optional<std::string> read(const std::filesystem::path& path);
    virtual std::optional<Bitmap> picture(const std::filesystem::path& path);
};

}  // namespace zentrox::story
