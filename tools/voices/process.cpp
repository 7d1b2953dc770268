#include "tools/voices/process.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace zentrox::voices {

void runProgram(const std::vector<std::string>& command) {
    std::vector<std::string> words = command;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    const int error = posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ);
    if (error != 0) throw std::system_error(error, std::generic_category(), command[0]);
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR) throw std::system_error(errno, std::generic_category(), command[0]);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error(command[0] + " failed");
}

}  // namespace zentrox::voices
