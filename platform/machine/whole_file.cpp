#include "platform/machine/whole_file.h"

#include <fstream>
#include <system_error>

namespace zentrox {

namespace fs = std::filesystem;

std::optional<std::string> readFile(const fs::path& path, std::uint64_t most) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return std::nullopt;
    const auto size = fs::file_size(path, error);
    if (error || size > most) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::string bytes(size, '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (in.bad()) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return bytes;
}

}  // namespace zentrox
