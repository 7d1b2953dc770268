// Why the system refuses something, in the language of the authors.
#pragma once

#include <string>
#include <system_error>

namespace zentrox {

std::string reasonInGerman(const std::error_code& error);
// The sentence for a file that could not be written.
std::string cannotWrite(const std::string& file, const std::system_error& error);

}  // namespace zentrox
