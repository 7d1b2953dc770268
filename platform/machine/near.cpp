#include "platform/machine/near.h"

namespace zentrox {

void bringNear(const std::filesystem::path& /*file*/) {}

}  // namespace zentrox
