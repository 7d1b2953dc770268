// Where there are no other processes.
#include "platform/codec/apart/handlers.h"

namespace zentrox::apart {

Handlers handlers() {
    return {};
}

Apart::Apart(const Handlers& /*handlers*/, Patience patience) : patience_(patience) {}

Apart::~Apart() = default;

void Worker::end() {}

}  // namespace zentrox::apart
