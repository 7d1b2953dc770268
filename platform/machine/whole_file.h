// Reading a file into memory.
#pragma once

#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>

namespace zentrox {

// All bytes of a file, or of what a pipe brings; nothing if it can't be read, is a directory, or has more than
// `most`.
std::optional<std::string> readFile(const std::filesystem::path& path,
                                    std::uint64_t most = std::numeric_limits<std::uint64_t>::max());

}  // namespace zentrox
