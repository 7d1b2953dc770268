// Bytes as files without a name, which the system forgets with their last user.
#pragma once

#include <filesystem>
#include <list>
#include <memory>
#include <string_view>
#include <utility>

namespace zentrox {

// Keeps the few that were asked for last.
class MemoryFiles {
public:
    // A path under which this process can open the file with this number; empty if it is not kept.
    std::filesystem::path find(std::size_t number);
    // Empty if the system has no memory for it.
    std::filesystem::path add(std::size_t number, std::string_view bytes);

private:
    class File;
    static constexpr std::size_t kept = 16;
    std::list<std::pair<std::size_t, std::shared_ptr<File>>> files_;  // what was asked for last is in front
};

}  // namespace zentrox
