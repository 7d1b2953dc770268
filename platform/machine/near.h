// Files that may lie far away.
#pragma once

#include <filesystem>

namespace zentrox {

// Sees to it that a file can be read in full. Where the data lie on a disk it does nothing; the page fetches the
// file and waits for it.
void bringNear(const std::filesystem::path& file);

}  // namespace zentrox
