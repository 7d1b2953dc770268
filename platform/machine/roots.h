// Where a CD of the game may stand.
#pragma once

#include <filesystem>
#include <vector>

namespace zentrox {

// The root of the file system on which the program's directory lies, then the mounted media in the order of the
// mount table: what is mounted under the usual places for media, and optical discs wherever they are. Each once.
std::vector<std::filesystem::path> searchRoots(const std::filesystem::path& programDirectory,
                                               const std::filesystem::path& mountTable = "/proc/self/mounts");

// True for a directory on an optical disc, or on the image of one.
bool isDisc(const std::filesystem::path& directory);

}  // namespace zentrox
