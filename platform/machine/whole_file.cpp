#include "platform/machine/whole_file.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace zentrox {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t piece = 65'536;  // bytes read at a time where nobody says how many there are

// Appends up to `count` bytes; false at the end.
bool readMore(std::istream& in, std::string& bytes, std::uint64_t count) {
    const std::size_t before = bytes.size();
    bytes.resize(before + static_cast<std::size_t>(count));
    in.read(bytes.data() + before, static_cast<std::streamsize>(count));
    bytes.resize(before + static_cast<std::size_t>(in.gcount()));
    return in.good();
}

}  // namespace

std::optional<std::string> readFile(const fs::path& path, std::uint64_t most) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error || fs::is_directory(status)) return std::nullopt;
    const std::uint64_t size = fs::is_regular_file(status) ? fs::file_size(path, error) : 0;
    if (error || size > most) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::string bytes;
    // A file may grow while it is read; one that the system makes up has no size at all.
    bool more = readMore(in, bytes, size);
    while (more && bytes.size() <= most) more = readMore(in, bytes, piece);
    if (in.bad() || bytes.size() > most) return std::nullopt;
    return bytes;
}

}  // namespace zentrox
