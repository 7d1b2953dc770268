// Plays WAV files of plain samples as they are read, so that a long one starts as fast as a short one and none
// takes memory.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/machine/decoder.h"

namespace zentrox {

// Null for a file that is none, is damaged, or holds packed samples.
std::unique_ptr<AudioReader> openWav(const std::filesystem::path& file);

}  // namespace zentrox
