// The few things about the running process that both programs need before anything else.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace zentrox {

// The file of the running program.
std::filesystem::path programFile();
// The directory that it lies in.
std::filesystem::path programDirectory();

// Where an installation keeps what belongs to a program in `programDirectory`: seen from there, so that the whole
// can be moved. Neither need be there.
std::filesystem::path libraryDirectoryFor(const std::filesystem::path& programDirectory);
std::filesystem::path dataDirectoryFor(const std::filesystem::path& programDirectory);

// What is left of the running thread's stack, in bytes, as far as it is known; more than any need where it is not.
std::size_t stackLeft();

// Starts a program without a shell and without waiting for it; a name without a slash is sought in the search path.
// False if it can't be started.
bool startProcess(const std::vector<std::string>& command);

}  // namespace zentrox
