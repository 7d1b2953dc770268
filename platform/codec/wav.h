// Plays WAV files from memory, brought to the form of the device bit by bit, so that the call that starts one is
// short.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/machine/decoder.h"

namespace zentrox {

// Null for a file that can't be played.
std::unique_ptr<AudioReader> openWav(const std::filesystem::path& file);

}  // namespace zentrox
