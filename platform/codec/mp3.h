// Plays MP3 files as they are read, so that a long one starts as fast as a short one.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/machine/decoder.h"

namespace zentrox {

// Null for a file that can't be played.
std::unique_ptr<AudioReader> openMp3(const std::filesystem::path& file);

}  // namespace zentrox
