// Writes the data files of a story.
#pragma once

#include <filesystem>

#include "tools/story/story.h"

namespace zentrox::story {

// Writes `bytes` beside `path` and renames them over it, unless the file holds just these already. Directories are
// made as needed. True if it has written; throws `std::filesystem::filesystem_error` where that fails.
bool writeIfChanged(const std::filesystem::path& path, const std::string& bytes);

// Writes all rooms to `into`/rooms and all item scripts to `into`/items, and gives the files that have changed.
std::vector<std::filesystem::path> writeStory(const Story& story, const std::filesystem::path& into);

}  // namespace zentrox::story
