#include "tests/apart/processes.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

namespace zentrox::test {

namespace fs = std::filesystem;

std::string statusOf(pid_t process, const std::string& line) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string read; std::getline(status, read);)
        if (read.starts_with(line + ":\t")) return read.substr(line.size() + 2);
    return {};
}

std::vector<pid_t> childrenOf(pid_t parent) {
    std::vector<pid_t> children;
    for (const auto& entry : fs::directory_iterator("/proc")) {
        const std::string name = entry.path().filename().string();
        pid_t process = 0;
        if (std::from_chars(name.data(), name.data() + name.size(), process).ptr != name.data() + name.size())
            continue;
        if (statusOf(process, "PPid") == std::to_string(parent)) children.push_back(process);
    }
    return children;
}

bool isGone(pid_t process) {
    const std::string state = statusOf(process, "State");
    return state.empty() || state.starts_with("Z") || state.starts_with("X");
}

std::size_t openFilesOf(pid_t process) {
    const fs::directory_iterator files("/proc/" + std::to_string(process) + "/fd");
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

bool comesTrue(const std::function<bool()>& condition) {
    for (int i = 0; i < 1000; ++i) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

}  // namespace zentrox::test
