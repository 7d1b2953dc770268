// What the helper's workers do.
#pragma once

#include "platform/codec/apart/apart.h"

namespace zentrox::apart {

// One for each job, in their order.
const Handler* handlers();

}  // namespace zentrox::apart
