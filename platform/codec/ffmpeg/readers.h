// What the decoder hands out.
#pragma once

#include <memory>

#include "platform/codec/filedecoder.h"

namespace zentrox::ffmpeg {

std::unique_ptr<AudioReader> openAudio(const OpenFile& file);
std::unique_ptr<VideoReader> openVideo(const OpenFile& file);

}  // namespace zentrox::ffmpeg
