#include "platform/codec/memoryfiles.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <string>

namespace zentrox {

namespace {

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace

class MemoryFiles::File {
public:
    explicit File(std::string_view bytes) : file_(memfd_create("zentrox", MFD_CLOEXEC)) {
        whole_ = file_ >= 0 && writeAll(file_, bytes);
    }
    ~File() {
        if (file_ >= 0) close(file_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool whole() const { return whole_; }
    std::filesystem::path path() const { return "/proc/self/fd/" + std::to_string(file_); }

private:
    int file_;
    bool whole_ = false;
};

std::filesystem::path MemoryFiles::find(std::size_t number) {
    const auto known =
        std::find_if(files_.begin(), files_.end(), [&](const auto& file) { return file.first == number; });
    if (known == files_.end()) return {};
    files_.splice(files_.begin(), files_, known);
    return files_.front().second->path();
}

std::filesystem::path MemoryFiles::add(std::size_t number, std::string_view bytes) {
    auto file = std::make_shared<File>(bytes);
    if (!file->whole()) return {};
    files_.emplace_front(number, std::move(file));
    if (files_.size() > kept) files_.pop_back();
    return files_.front().second->path();
}

}  // namespace zentrox
