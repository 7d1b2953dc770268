#include "platform/codec/memoryfiles.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <string>

#include "platform/values/limits.h"

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
    File() : file_(memfd_create("zentrox", MFD_CLOEXEC)) {}
    ~File() {
        if (file_ >= 0) close(file_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool append(std::string_view piece) {
        size_ += piece.size();
        return file_ >= 0 && writeAll(file_, piece);
    }
    std::uint64_t size() const { return size_; }
    std::filesystem::path path() const { return "/proc/self/fd/" + std::to_string(file_); }

private:
    int file_;
    std::uint64_t size_ = 0;
};

std::filesystem::path MemoryFiles::find(std::size_t number) {
    const auto known =
        std::find_if(files_.begin(), files_.end(), [&](const auto& file) { return file.first == number; });
    if (known == files_.end()) return {};
    files_.splice(files_.begin(), files_, known);
    return files_.front().second->path();
}

std::filesystem::path MemoryFiles::add(std::size_t number, const std::function<bool(const Append&)>& fill) {
    auto file = std::make_shared<File>();
    if (!fill([&](std::string_view piece) { return file->append(piece); })) return {};
    files_.emplace_front(number, std::move(file));
    while (files_.size() > 1 && (files_.size() > kept || size() > limits::unpackedBytes)) files_.pop_back();
    return files_.front().second->path();
}

std::uint64_t MemoryFiles::size() const {
    std::uint64_t sum = 0;
    for (const auto& [number, file] : files_) sum += file->size();
    return sum;
}

}  // namespace zentrox
