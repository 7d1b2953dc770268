#include "platform/machine/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

#include "platform/machine/descriptor.h"

namespace zentrox {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category());
}

// Calls again what a signal has interrupted.
template <class Call>
auto persistently(Call call) {
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR) return result;
    }
}

// An interrupted close has closed.
void closeChecked(Descriptor& descriptor) {
    if (::close(descriptor.release()) != 0 && errno != EINTR) fail();
}

// A file beside its target, gone with the scope unless it has taken the target's place.
class Draft {
public:
    explicit Draft(fs::path path) : path_(std::move(path)) {}
    ~Draft() {
        if (!placed_) unlink(path_.c_str());
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    void place(const fs::path& target) {
        if (persistently([&] { return std::rename(path_.c_str(), target.c_str()); }) != 0) fail();
        placed_ = true;
    }

private:
    fs::path path_;
    bool placed_ = false;
};

void writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = persistently([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (written == 0) errno = ENOSPC;
        if (written <= 0) fail();
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void bringToDisk(int descriptor) {
    if (persistently([&] { return fsync(descriptor); }) != 0) fail();
}

// Brings a new name to the disk. Not every file system can do that, nor everybody read each directory.
void bringNameToDisk(const fs::path& directory) {
    const Descriptor folder(
        persistently([&] { return open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (folder.number() < 0 && errno == EACCES) return;
    if (folder.number() < 0) fail();
    if (persistently([&] { return fsync(folder.number()); }) != 0 && errno != EINVAL && errno != ENOTSUP) fail();
}

fs::path directoryOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : ".";
}

// Makes a new file of a name of its own, as another process may write in this moment; it is short, as the target's
// may be long.
int makeBeside(const fs::path& target, fs::path& made) {
    for (int i = 0;; ++i) {
        made = directoryOf(target) / (".zentrox-" + std::to_string(getpid()) + "-" + std::to_string(i) + ".tmp");
        const int descriptor =
            persistently([&] { return open(made.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666); });
        if (descriptor >= 0) return descriptor;
        if (errno != EEXIST) fail();
    }
}

void writeInto(const fs::path& target, std::string_view bytes) {
    Descriptor out(persistently([&] { return open(target.c_str(), O_WRONLY | O_CLOEXEC); }));
    if (out.number() < 0) fail();
    writeAll(out.number(), bytes);
    closeChecked(out);
}

void replacePlain(const fs::path& target, std::string_view bytes, const struct stat* old) {
    fs::path beside;
    Descriptor out(makeBeside(target, beside));
    Draft draft(beside);
    // Who may not give the file the old permissions still may write it.
    if (old != nullptr) static_cast<void>(fchmod(out.number(), old->st_mode & 0777U));
    writeAll(out.number(), bytes);
    bringToDisk(out.number());
    closeChecked(out);
    draft.place(target);
    bringNameToDisk(directoryOf(target));
}

}  // namespace

void replaceFile(const fs::path& target, std::string_view bytes) {
    if (target.empty()) throw std::system_error(ENOENT, std::generic_category());
    struct stat old {};
    const bool there = stat(target.c_str(), &old) == 0;
    if (there && !S_ISREG(old.st_mode) && !S_ISDIR(old.st_mode)) return writeInto(target, bytes);
    std::error_code error;
    const fs::path whole = there ? fs::canonical(target, error) : fs::path();
    replacePlain(there && !error ? whole : target, bytes, there ? &old : nullptr);
}

void placeFile(const fs::path& draft, const fs::path& target) {
    Draft written(draft);
    Descriptor file(persistently([&] { return open(draft.c_str(), O_RDONLY | O_CLOEXEC); }));
    if (file.number() < 0) fail();
    bringToDisk(file.number());
    closeChecked(file);
    written.place(target);
    bringNameToDisk(directoryOf(target));
}

}  // namespace zentrox
