#include "tools/story/sourcefiles.h"

#include "platform/codec/pictures.h"
#include "platform/machine/files.h"
#include "platform/machine/whole_file.h"
#include "platform/values/error.h"

namespace zentrox::story {

namespace fs = std::filesystem;

std::optional<std::string> SourceFiles::read(const fs::path& path) {
    return readFile(path);
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
