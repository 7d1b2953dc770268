// The processes of the machine, as the system tells of them.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

namespace zentrox::test {

std::vector<pid_t> childrenOf(pid_t parent);
// A line of what the system says of a process, behind its name: "State", "Seccomp", ...; empty if it is gone.
std::string statusOf(pid_t process, const std::string& line);
bool isGone(pid_t process);  // or waits to be forgotten
std::size_t openFilesOf(pid_t process);
// False if that takes more than ten seconds.
bool comesTrue(const std::function<bool()>& condition);

}  // namespace zentrox::test
