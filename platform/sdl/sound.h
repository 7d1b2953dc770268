// The sound and video device of the desktop.
#pragma once

#include <functional>
#include <memory>

#include "platform/machine/files.h"
#include "platform/machine/sound.h"

namespace zentrox {

// Nothing is loaded or opened before it is needed. The environment variable ZENTROX_SOUND with the value "none"
// leaves the machine's sound alone; all is then silent without a complaint.
// `clock` tells milliseconds; it may stand still while the sound is paused, and never goes back. Without one it is
// the machine's.
// `silent` does the same as the environment variable.
std::unique_ptr<SoundDevice> desktopSound(const Files& files, std::function<std::int64_t()> clock = {},
                                          bool silent = false);

}  // namespace zentrox
