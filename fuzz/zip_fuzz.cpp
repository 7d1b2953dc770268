// Packed stories from anywhere: refused, or names that do not leave the archive and files of the size that it says.
#include "fuzz/file_fuzz.h"
#include "platform/codec/zip.h"
#include "platform/values/error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    static const fuzz::File file("geschichte.zip");
    file.hold(data, size);
    try {
        const auto archive = openZip(file.path());
        for (std::size_t i = 0; i < archive->names().size() && i < 20; ++i) {
            const std::string& name = archive->names()[i];
            if (name.empty() || name.front() == '/' || name.find("..") == 0) std::abort();
            archive->read(i);
        }
    } catch (const DataError&) {
        // Refused, and said so.
    }
    return 0;
}
