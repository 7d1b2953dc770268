// Bytes as letters, digits, + and /, four of them for three bytes, filled up with =.
#pragma once

#include <string>
#include <string_view>

namespace zentrox {

std::string base64(std::string_view bytes);

}  // namespace zentrox
