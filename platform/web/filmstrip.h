// The pictures of films that were taken apart ahead, for the probe under node: nothing decodes a film there.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/machine/decoder.h"

namespace zentrox::web {

// A film's pictures lie in one file, each behind the millisecond at which it is seen (8 bytes, as the machine has
// them). The file has the path of the film below the directory that the environment names as ZENTROX_FILMS. Null if
// there is none.
std::unique_ptr<VideoReader> openFilmstrip(const std::filesystem::path& film);

}  // namespace zentrox::web
