// Stories packed into one file: a zip archive of stored or deflated files.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/machine/archive.h"
#include "platform/machine/files.h"

namespace zentrox {

// More than any story has, and no more than a machine bears.
constexpr std::uint64_t mostPackedFiles = 20'000;
constexpr std::uint64_t largestPackedFile = 512U << 20U;  // bytes, unpacked
constexpr std::uint64_t largestPackedStory = 4096ULL << 20U;
constexpr std::uint64_t mostPackedGrowth = 200;  // of all files together: bytes unpacked for one of the archive
constexpr std::size_t longestPackedName = 1000;

// Throws `DataError` that names the file, in German, where it can't be read, is no zip archive, is cut or damaged,
// or holds what no story holds: names that leave it, links, encryption, other methods, too much.
std::unique_ptr<Archive> openZip(const std::filesystem::path& file);

// The files of a story in a directory, or packed. Throws as `openZip` does.
Files openStory(const std::filesystem::path& place);

}  // namespace zentrox
