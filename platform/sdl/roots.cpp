#include "platform/sdl/roots.h"

#include <mntent.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace zentrox::sdl {

namespace {

namespace fs = std::filesystem;

struct Mount {
    fs::path place;
    std::string type;
};

struct MountTableEnd {
    void operator()(FILE* table) const { endmntent(table); }
};

std::vector<Mount> mounts() {
    std::vector<Mount> all;
    const std::unique_ptr<FILE, MountTableEnd> table(setmntent("/proc/self/mounts", "r"));
    mntent entry{};
    std::array<char, 4096> text{};
    while (table && getmntent_r(table.get(), &entry, text.data(), static_cast<int>(text.size())) != nullptr)
        all.push_back({entry.mnt_dir, entry.mnt_type});
    return all;
}

bool under(const fs::path& path, const fs::path& above) {
    return std::mismatch(above.begin(), above.end(), path.begin(), path.end()).first == above.end();
}

bool isMedium(const Mount& mount) {
    if (mount.type == "iso9660" || mount.type == "udf") return true;
    for (const char* const home : {"/media", "/run/media", "/mnt"})
        if (under(mount.place, home)) return true;
    return false;
}

}  // namespace

std::vector<fs::path> roots(const fs::path& directory) {
    const std::vector<Mount> all = mounts();
    fs::path own = directory.root_path();
    for (const Mount& mount : all)
        if (under(directory, mount.place) && mount.place.native().size() >= own.native().size()) own = mount.place;
    std::vector<fs::path> found{own};
    for (const Mount& mount : all)
        if (isMedium(mount) && std::find(found.begin(), found.end(), mount.place) == found.end())
            found.push_back(mount.place);
    return found;
}

}  // namespace zentrox::sdl
