#include "platform/machine/near.h"

#include "platform/web/calls.h"

namespace zentrox {

void bringNear(const std::filesystem::path& file) {
    pageNear(file.c_str());
}

}  // namespace zentrox
