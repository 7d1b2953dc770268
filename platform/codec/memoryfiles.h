// Bytes as files without a name, which the system forgets with their last user.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <string_view>
#include <utility>

namespace zentrox {

// Keeps the few that were asked for last, and of large ones fewer.
class MemoryFiles {
public:
    // A path under which this process can open the file with this number; empty if it is not kept.
    std::filesystem::path find(std::size_t number);
    // Takes the bytes piece by piece; false if the system has no memory for them.
    using Append = std::function<bool(std::string_view piece)>;
    // `fill` appends all bytes and says whether it could. Empty if it could not.
    std::filesystem::path add(std::size_t number, const std::function<bool(const Append&)>& fill);

private:
    class File;
    std::uint64_t size() const;
    static constexpr std::size_t kept = 16;
    std::list<std::pair<std::size_t, std::shared_ptr<File>>> files_;  // what was asked for last is in front
};

}  // namespace zentrox
