// What the helper's workers do.
#pragma once

#include "platform/codec/apart/apart.h"

namespace zentrox::apart {

// For what every machine decodes; MP3 has one of its own (mp3.h).
Handlers handlers();

}  // namespace zentrox::apart
