#include "tools/story/sourcefiles.h"

#include <fstream>

#include "platform/codec/pictures.h"
#include "platform/machine/files.h"
#include "platform/values/error.h"

namespace zentrox::story {

namespace fs = std::filesystem;

std::optional<std::string> SourceFiles::read(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    std::string bytes(static_cast<std::size_t>(fs::file_size(path, error)), '\0');
    if (error || !in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
    return bytes;
}

std::optional<Bitmap> SourceFiles::picture(const fs::path& path) {
    const fs::path whole = fs::absolute(path);
    try {
        return loadPicture(Files(whole.parent_path()), Files::gamePath(whole));
    } catch (const DataError&) {
        return std::nullopt;
    }
}

}  // namespace zentrox::story
