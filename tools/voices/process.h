// Runs the programs that the sounds are made with.
#pragma once

#include <string>
#include <vector>

namespace zentrox::voices {

// Runs a program from the search path without a shell, and waits for it. Throws `std::runtime_error` with its name
// if it can't be started or does not end well; what it has to say it says on standard error.
void runProgram(const std::vector<std::string>& command);

}  // namespace zentrox::voices
