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
    using Paths = std::set<std::filesystem::path>;

    int descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    std::map<int, std::filesystem::path> standing;
    Paths missing;

    ~Kept() {
        if (descriptor >= 0) close(descriptor);
    }
    bool begin(const std::filesystem::path& directory) {
        constexpr std::uint32_t kinds = IN_MODIFY | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_CREATE |
                                        IN_DELETE | IN_MOVE_SELF | IN_DELETE_SELF | IN_ONLYDIR;
        const int number = inotify_add_watch(descriptor, directory.c_str(), kinds);
        if (number >= 0) standing.emplace(number, directory);
        return number >= 0;
    }
    // One that was renamed would be told of by its old name.
    void lose(int number, Paths& changed) {
        const auto directory = standing.find(number);
        if (directory == standing.end()) return;
        inotify_rm_watch(descriptor, number);
        changed.insert(directory->second);
        missing.insert(directory->second);
        standing.erase(directory);
    }
    void note(const inotify_event& event, const char* name, Paths& changed) {
        if ((event.mask & IN_Q_OVERFLOW) != 0)
            for (const auto& [number, directory] : standing) changed.insert(directory);
        if ((event.mask & (IN_MOVE_SELF | IN_DELETE_SELF)) != 0) return lose(event.wd, changed);
        const auto directory = standing.find(event.wd);
        if (directory != standing.end() && event.len > 0) changed.insert(directory->second / name);
    }
    void look(Paths& changed) {
        std::erase_if(missing, [&](const std::filesystem::path& directory) {
            const bool came = begin(directory);
            if (came) changed.insert(directory);
            return came;
        });
    }
};

Watch::Watch() : kept_(std::make_unique<Kept>()) {}
Watch::~Watch() = default;

void Watch::add(const std::filesystem::path& directory) {
    if (!kept_->begin(directory)) kept_->missing.insert(directory);
}

std::set<std::filesystem::path> Watch::take() {
    std::set<std::filesystem::path> changed;
    alignas(inotify_event) std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t bytes = read(kept_->descriptor, buffer.data(), buffer.size());
        if (bytes <= 0) break;
        for (std::size_t at = 0; at < static_cast<std::size_t>(bytes);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            const char* const name = buffer.data() + at + sizeof event;
            at += sizeof event + event.len;
            kept_->note(event, name, changed);
        }
    }
    kept_->look(changed);
    return changed;
}

#else

struct Watch::Kept {};
Watch::Watch() = default;
Watch::~Watch() = default;
void Watch::add(const std::filesystem::path& /*directory*/) {}
std::set<std::filesystem::path> Watch::take() {
    return {};
}

#endif

}  // namespace zentrox
