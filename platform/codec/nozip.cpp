// Where the engine has its story as files only.
#include "platform/codec/zip.h"
#include "platform/values/error.h"

namespace zentrox {

std::unique_ptr<Archive> openZip(const std::filesystem::path& /*file*/) {
    throw DataError(Text("Hier können keine gepackten Geschichten gelesen werden."_t));
}

Files openStory(const std::filesystem::path& place) {
    std::error_code error;
    return std::filesystem::is_directory(place, error) ? Files(place) : Files(place, openZip(place));
}

}  // namespace zentrox
