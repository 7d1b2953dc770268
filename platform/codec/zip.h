// Stories packed into one file: a zip archive of stored or deflated files.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/machine/archive.h"
#include "platform/machine/files.h"

namespace zentrox {

// Throws `DataError` that names the file, in German, where it can't be read, is no zip archive, is cut or damaged,
// or holds what no story holds: names that leave it, links, encryption, other methods, too much.
std::unique_ptr<Archive> openZip(const std::filesystem::path& file);

// The files of a story in a directory, or packed. Throws as `openZip` does.
Files openStory(const std::filesystem::path& place);

}  // namespace zentrox
