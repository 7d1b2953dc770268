// Where a CD may be.
#pragma once

#include <filesystem>
#include <vector>

namespace zentrox::sdl {

// The root of the file system on which `directory` lies, then the mounted media in the order of the mount table:
// those under /media, /run/media and /mnt, and optical drives wherever they are.
std::vector<std::filesystem::path> roots(const std::filesystem::path& directory);

}  // namespace zentrox::sdl
