// Tells which files of some directories have changed since it was asked last.
#pragma once

#include <filesystem>
#include <memory>
#include <set>

namespace zentrox {

// Over inotify, which Linux has; a library for it would be larger than this, and SDL has none. Where the machine
// can't watch, nothing changes.
class Watch {
public:
    Watch();
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    // The files that lie directly in it, now or later; it need not be there yet. Twice is as good as once.
    void add(const std::filesystem::path& directory);
    // The files that have been written, renamed, made or deleted, each in the directory as it was added. Where a
    // directory has gone or come, or too much has happened to be told of, the directories themselves.
    std::set<std::filesystem::path> take();

private:
    struct Kept;
    std::unique_ptr<Kept> kept_;
};

}  // namespace zentrox
