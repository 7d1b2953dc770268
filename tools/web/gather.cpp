#include "tools/web/gather.h"

#include <algorithm>

#include "platform/values/text.h"

namespace zentrox::web {

namespace fs = std::filesystem;

std::string discRoot(std::size_t number) {
    return number == 0 ? "/cd" : "/cd" + std::to_string(number + 1);
}

std::vector<StoryFile> gather(const fs::path& directory, const std::string& root) {
    std::vector<StoryFile> files;
    constexpr auto links = fs::directory_options::follow_directory_symlink;
    for (fs::recursive_directory_iterator entry(directory, links), end; entry != end; ++entry) {
        const std::string name = entry->path().filename().string();
        const bool saves = entry.depth() == 0 && lower(name) == "saves";
        if (name.starts_with(".") || saves) {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file()) {
            files.push_back({entry->path(), root + "/" + entry->path().lexically_relative(directory).string()});
        }
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return files;
}

}  // namespace zentrox::web
