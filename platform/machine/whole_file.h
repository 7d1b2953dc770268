// Reading a file into memory.
#pragma once

#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>

namespace zentrox {

// All bytes of a plain file; nothing if it is none, can't be read, or has more than `most`. A file that grows or
// shrinks while it is read is taken as far as it was there.
std::optional<std::string> readFile(const std::filesystem::path& path,
                                    std::uint64_t most = std::numeric_limits<std::uint64_t>::max());

}  // namespace zentrox
