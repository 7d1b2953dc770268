// Pictures and icons from anywhere: damaged, or one of a size that is believed.
#include "fuzz/file_fuzz.h"
#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "platform/values/limits.h"

namespace {

using namespace zentrox;

void picture(const Files& files, const char* name) {
    const Bitmap bitmap = loadPicture(files, name);
    const auto pixels = static_cast<std::uint64_t>(bitmap.width()) * static_cast<std::uint64_t>(bitmap.height());
    if (bitmap.empty() || pixels > limits::picturePixels) std::abort();
}

void icon(const Files& files, const char* name) {
    const Icon icon = loadIcon(files, name);
    if (icon.pixels.size() != static_cast<std::size_t>(icon.size.w) * static_cast<std::size_t>(icon.size.h))
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::File file("bild");
    static const Files files = file.files();
    file.hold(data, size);
    for (const auto load : {picture, icon}) {
        try {
            load(files, file.name());
        } catch (const DataError&) {
            // Damaged, and said so.
        }
    }
    return 0;
}
