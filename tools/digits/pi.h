// The digits of pi.
#pragma once

#include <cstddef>
#include <string>

namespace zentrox {

// The first `count` characters of "3.14159...", the point counted.
std::string piCharacters(std::size_t count);

}  // namespace zentrox
