// Pictures, decoded by a worker, one after the other.
#pragma once

#include "platform/codec/apart/apart.h"

namespace zentrox::apart {

// The worker's side.
void servePictures(Channel& channel);

}  // namespace zentrox::apart
