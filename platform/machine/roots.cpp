#include "platform/machine/roots.h"

#include <sys/stat.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>

namespace zentrox {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 3> mediaPlaces{"/media", "/run/media", "/mnt"};
constexpr std::array<std::string_view, 2> discSystems{"iso9660", "udf"};
constexpr std::array<std::uint64_t, 2> discMagics{0x9660, 0x15013346};  // the same two, as the kernel numbers them

// The top directory of the file system that a directory lies in.
fs::path rootOf(const fs::path& directory) {
    std::error_code error;
    fs::path at = fs::weakly_canonical(directory, error);
    struct stat here {};
    struct stat above {};
    if (error || stat(at.c_str(), &here) != 0) return "/";
    while (at.has_relative_path() && stat(at.parent_path().c_str(), &above) == 0 && above.st_dev == here.st_dev)
        at = at.parent_path();
    return at;
}

bool isOctal(char c) {
    return c >= '0' && c <= '7';
}

// The mount table writes blanks and the like as a backslash and three octal digits.
std::string unescaped(const std::string& field) {
    std::string out;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const bool coded = field[i] == '\\' && i + 3 < field.size() && isOctal(field[i + 1]) &&
                           isOctal(field[i + 2]) && isOctal(field[i + 3]);
        if (!coded) {
            out += field[i];
            continue;
        }
        out += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 + (field[i + 3] - '0'));
        i += 3;
    }
    return out;
}

bool isMedium(const std::string& point, const std::string& system) {
    if (std::find(discSystems.begin(), discSystems.end(), system) != discSystems.end()) return true;
    return std::any_of(mediaPlaces.begin(), mediaPlaces.end(), [&](std::string_view place) {
        return point.starts_with(place) && (point.size() == place.size() || point[place.size()] == '/');
    });
}

}  // namespace

std::vector<fs::path> searchRoots(const fs::path& programDirectory, const fs::path& mountTable) {
    std::vector<fs::path> roots{rootOf(programDirectory)};
    std::ifstream table(mountTable);
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::string device;
        std::string point;
        std::string system;
        if (!(fields >> device >> point >> system)) continue;
        point = unescaped(point);
        if (isMedium(point, system) && std::find(roots.begin(), roots.end(), point) == roots.end())
            roots.emplace_back(point);
    }
    return roots;
}

bool isDisc(const fs::path& directory) {
    struct statfs system {};
    if (statfs(directory.c_str(), &system) != 0) return false;
    return std::find(discMagics.begin(), discMagics.end(), static_cast<std::uint64_t>(system.f_type)) !=
           discMagics.end();
}

}  // namespace zentrox
