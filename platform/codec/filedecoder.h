// What decodes a file that is already open; for the rest of the program, platform/machine/decoder.h opens it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/machine/decoder.h"
#include "platform/machine/descriptor.h"

namespace zentrox {

struct OpenFile {
    std::shared_ptr<const Descriptor> file;
    std::string name;  // what it is called, without a directory; the ending can tell what it is
};

// Null where the file can't be read.
inline std::shared_ptr<const Descriptor> sharedForReading(const std::filesystem::path& file) {
    auto opened = std::make_shared<const Descriptor>(openForReading(file));
    return opened->isOpen() ? opened : nullptr;
}

class FileDecoder {
public:
    virtual ~FileDecoder() = default;
    // As `MediaDecoder` has them.
    virtual std::unique_ptr<AudioReader> openAudio(const OpenFile& file) = 0;
    virtual std::unique_ptr<VideoReader> openVideo(const OpenFile& file) = 0;
    virtual std::int64_t audioLength(const OpenFile& file) = 0;
    virtual std::int64_t videoLength(const OpenFile& file) = 0;
};

// The libraries, loaded at the first call. Null if they are not there.
FileDecoder* loadedDecoder();

}  // namespace zentrox
