#include "platform/machine/watch.h"

#ifdef __linux__
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <map>
#endif

namespace zentrox {

#ifdef __linux__

struct Watch::Kept {
    int descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    std::map<int, std::filesystem::path> directories;
    ~Kept() {
        if (descriptor >= 0) close(descriptor);
    }
};

Watch::Watch() : kept_(std::make_unique<Kept>()) {}
Watch::~Watch() = default;

bool Watch::add(const std::filesystem::path& directory) {
    constexpr std::uint32_t kinds =
        IN_MODIFY | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_CREATE | IN_DELETE;
    const int number = inotify_add_watch(kept_->descriptor, directory.c_str(), kinds);
    if (number < 0) return false;
    kept_->directories.emplace(number, directory);
    return true;
}

std::set<std::filesystem::path> Watch::take() {
    std::set<std::filesystem::path> changed;
    alignas(inotify_event) std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t bytes = read(kept_->descriptor, buffer.data(), buffer.size());
        if (bytes <= 0) return changed;
        for (std::size_t at = 0; at < static_cast<std::size_t>(bytes);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            const char* const name = buffer.data() + at + sizeof event;
            at += sizeof event + event.len;
            if ((event.mask & IN_Q_OVERFLOW) != 0)
                for (const auto& [number, directory] : kept_->directories) changed.insert(directory);
            const auto directory = kept_->directories.find(event.wd);
            if (directory != kept_->directories.end() && event.len > 0) changed.insert(directory->second / name);
        }
    }
}

#else

struct Watch::Kept {};
Watch::Watch() = default;
Watch::~Watch() = default;
bool Watch::add(const std::filesystem::path& /*directory*/) {
    return false;
}
std::set<std::filesystem::path> Watch::take() {
    return {};
}

#endif

}  // namespace zentrox
