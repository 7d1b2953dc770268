#include "platform/machine/archive.h"

#include <algorithm>

namespace zentrox {

namespace {

// "Rooms\..\rooms\.\Start.lsd" becomes "ROOMS\START.LSD"; nothing if it leads out.
std::optional<Text> normalised(TextView path) {
    std::vector<TextView> parts;
    while (!path.empty()) {
        const auto end = std::min(path.find_first_of("\\/"), path.size());
        const TextView part = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (part.empty() || part == ".") continue;
        if (part != "..") {
            parts.push_back(part);
            continue;
        }
        if (parts.empty()) return std::nullopt;
        parts.pop_back();
    }
    Text whole;
    for (const TextView part : parts) (whole += whole.empty() ? "" : "\\") += part;
    return upper(whole);
}

Text gameSpelling(const std::string& name) {
    Text text = fromUtf8(name);
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

}  // namespace

Packed::Packed(std::unique_ptr<Archive> archive) : archive_(std::move(archive)) {
    for (const std::string& name : archive_->names()) {
        spelled_.push_back(gameSpelling(name));
        byName_.emplace(upper(spelled_.back()), spelled_.size() - 1);
    }
}

std::optional<std::size_t> Packed::find(TextView path) const {
    // A path that ends in a backslash names a directory.
    if (path.empty() || path.back() == '\\' || path.back() == '/') return std::nullopt;
    const auto name = normalised(path);
    const auto found = name ? byName_.find(*name) : byName_.end();
    if (found == byName_.end()) return std::nullopt;
    return found->second;
}

std::vector<Text> Packed::list(TextView directory) const {
    std::vector<Text> names;
    const auto above = normalised(directory);
    if (!above) return names;
    const Text start = above->empty() ? Text() : *above + "\\";
    for (auto at = byName_.lower_bound(start); at != byName_.end() && at->first.starts_with(start); ++at)
        if (at->first.find('\\', start.size()) == Text::npos)
            names.push_back(spelled_[at->second].substr(start.size()));
    return names;
}

}  // namespace zentrox
