// A small story to begin with: sources, pictures and a walk.
#pragma once

#include <filesystem>

namespace zentrox::story {

// Makes `directory` a story of one room that can be played at once, its data built already. Throws
// `std::filesystem::filesystem_error` where that fails, also if there is anything in the directory.
void writeFreshStory(const std::filesystem::path& directory);

}  // namespace zentrox::story
