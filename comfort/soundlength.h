// How long a file of the story sounds.
#pragma once

#include "platform/machine/decoder.h"
#include "platform/machine/files.h"

namespace zentrox {

// Milliseconds; 0 for what can't be decoded.
inline std::int64_t soundLength(const Files& files, TextView path) {
    MediaDecoder* const decoder = mediaDecoder();
    return decoder != nullptr && files.exists(path) ? decoder->audioLength(files.systemPath(path)) : 0;
}

}  // namespace zentrox
