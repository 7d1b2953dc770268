#include "comfort/slots.h"

#include <algorithm>

#include "saves/dialog.h"

namespace zentrox {

Text Slots::next() const {
    const std::vector<Text> there = newestFirst();
    for (int i = 1; i <= count; ++i) {
        const Text path = Speicherverzeichnis(files_) + stem_ + std::to_string(i) + Text(Spielstandendung);
        if (std::find(there.begin(), there.end(), path) == there.end()) return path;
    }
    return there.back();
}

std::vector<Text> Slots::newestFirst() const {
    std::vector<std::pair<std::filesystem::file_time_type, Text>> found;
    for (int i = 1; i <= count; ++i) {
        const Text path = Speicherverzeichnis(files_) + stem_ + std::to_string(i) + Text(Spielstandendung);
        if (!files_.exists(path)) continue;
        std::error_code error;
        found.emplace_back(std::filesystem::last_write_time(files_.systemPath(path), error), path);
    }
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<Text> paths;
    for (auto& [time, path] : found) paths.push_back(std::move(path));
    return paths;
}

}  // namespace zentrox
