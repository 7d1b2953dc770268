#include "platform/codec/zip.h"

// No file of memory alone, which only packed stories would want.
extern "C" int memfd_create(const char* /*name*/, unsigned /*flags*/) {
    return -1;
}

namespace zentrox {

// A page has its story file by file.
Files openStory(const std::filesystem::path& place) {
    return Files(place);
}

}  // namespace zentrox
