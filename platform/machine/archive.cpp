#include "platform/machine/archive.h"

#include <sys/mman.h>
#include <unistd.h>

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

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace

// Bytes in a file without a name, which the system forgets with its last user.
class Packed::Memory {
public:
    explicit Memory(std::string_view bytes) : file_(memfd_create("zentrox", MFD_CLOEXEC)) {
        whole_ = file_ >= 0 && writeAll(file_, bytes);
    }
    ~Memory() {
        if (file_ >= 0) close(file_);
    }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;

    bool whole() const { return whole_; }
    std::filesystem::path path() const { return "/proc/self/fd/" + std::to_string(file_); }

private:
    int file_;
    bool whole_ = false;
};

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

std::filesystem::path Packed::open(std::size_t entry) {
    const auto known =
        std::find_if(open_.begin(), open_.end(), [&](const auto& one) { return one.first == entry; });
    if (known != open_.end()) {
        open_.splice(open_.begin(), open_, known);
        return open_.front().second->path();
    }
    const auto bytes = archive_->read(entry);
    if (!bytes) return {};
    auto memory = std::make_shared<Memory>(*bytes);
    if (!memory->whole()) return {};
    open_.emplace_front(entry, std::move(memory));
    if (open_.size() > keptOpen) open_.pop_back();
    return open_.front().second->path();
}

}  // namespace zentrox
