#include "platform/machine/replace_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace zentrox {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t pieceSize = 4096;  // bytes a write

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category());
}

// A file being written beside its target. It is gone with the scope unless it has taken the target's place.
class Draft {
public:
    explicit Draft(const fs::path& directory) {
        // A name of its own, as another process may save in this moment; it is short, as the target's may be long.
        for (int i = 0; descriptor_ < 0; ++i) {
            path_ = directory / (".zentrox-" + std::to_string(getpid()) + "-" + std::to_string(i) + ".tmp");
            descriptor_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (descriptor_ < 0 && errno != EEXIST) fail();
        }
    }
    ~Draft() {
        if (descriptor_ >= 0) ::close(descriptor_);
        if (!placed_) unlink(path_.c_str());
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) fail();
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    void flush() {
        if (fsync(descriptor_) != 0) fail();
    }
    void close() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        if (::close(descriptor) != 0) fail();
    }
    void place(const fs::path& target) {
        if (std::rename(path_.c_str(), target.c_str()) != 0) fail();
        placed_ = true;
    }

private:
    fs::path path_;
    int descriptor_ = -1;
    bool placed_ = false;
};

// Brings the new name to the disk. Not every file system can do that for a directory, and the file is whole
// already.
void flushDirectory(const fs::path& directory) {
    const int descriptor = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

}  // namespace

void replaceFile(const fs::path& target, std::string_view bytes, const std::function<void()>& beforeStep) {
    const auto step = [&] {
        if (beforeStep) beforeStep();
    };
    const fs::path directory = target.parent_path();
    step();
    Draft draft(directory);
    while (!bytes.empty()) {
        step();
        draft.write(bytes.substr(0, pieceSize));
        bytes.remove_prefix(std::min(pieceSize, bytes.size()));
    }
    step();
    draft.flush();
    step();
    draft.close();
    step();
    draft.place(target);
    step();
    flushDirectory(directory);
}

}  // namespace zentrox
