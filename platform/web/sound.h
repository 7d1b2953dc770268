// Sounds and films as the browser plays them. How long each lasts is told by the list, so that the game's times are
// those of the desktop whatever the network does.
#pragma once

#include <memory>

#include "platform/machine/files.h"
#include "platform/machine/sound.h"

namespace zentrox::web {

std::unique_ptr<SoundDevice> pageSound(Files story);

}  // namespace zentrox::web
