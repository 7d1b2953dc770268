// The sound and video device of the desktop.
#pragma once

#include <memory>

#include "platform/machine/files.h"
#include "platform/machine/sound.h"

namespace zentrox {

// Nothing is loaded or opened before it is needed. The environment variable ZENTROX_SOUND with the value "none"
// leaves the machine's sound alone; all is then silent without a complaint.
std::unique_ptr<SoundDevice> desktopSound(const Files& files);

}  // namespace zentrox
