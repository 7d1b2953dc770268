// Plays MP3 files as they are read, so that a long one starts as fast as a short one.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/codec/apart/apart.h"
#include "platform/machine/decoder.h"

namespace zentrox {

// Null for a file that can't be played. A worker decodes it if there is one.
std::unique_ptr<AudioReader> openMp3(const std::filesystem::path& file);

// What a worker does for it, to be put in the place of `Job::mp3`.
apart::Handler mp3Handler();

}  // namespace zentrox
