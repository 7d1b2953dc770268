// What the decoder hands out.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/machine/decoder.h"

namespace zentrox::ffmpeg {

std::unique_ptr<AudioReader> openAudio(const std::filesystem::path& file);
std::unique_ptr<VideoReader> openVideo(const std::filesystem::path& file);

}  // namespace zentrox::ffmpeg
