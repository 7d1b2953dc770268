#include "tools/story/datafiles.h"

#include <algorithm>
#include <array>

#include "engine/state/felder.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

// Any of them tells that data lies here. A directory of games does not: the games of a story may be sources as
// well.
constexpr std::array directories{"rooms", "sounds", "graphics", "movies", "cursors", "items", "musics"};
constexpr std::size_t extensionLength = 3;  // without the dot

bool holdsData(const fs::path& directory) {
    const Files files(directory);
    std::error_code error;
    return std::any_of(directories.begin(), directories.end(),
                       [&](const char* name) { return fs::is_directory(files.systemPath(name), error); });
}

}  // namespace

DataFiles::DataFiles(const fs::path& root) : files_(root) {}

bool DataFiles::has(TextView directory, TextView path) const {
    return listing(directory).upper.contains(upper(Dateiname(path)));
}

const DataFiles::Listing& DataFiles::listing(TextView directory) const {
    const auto [at, isNew] = listings_.try_emplace(Text(directory));
    if (isNew) at->second.names = files_.list(directory);
    if (isNew)
        for (const Text& name : at->second.names) at->second.upper.insert(upper(name));
    return at->second;
}

bool DataFiles::hasSound(TextView path) const {
    const TextView stem = path.substr(0, path.size() - std::min(path.size(), extensionLength));
    return has("sounds", path) || has("sounds", Text(stem) + "mp3") || has("sounds", Text(stem) + "wav");
}

bool DataFiles::hasRoom(TextView path) const {
    return files_.exists("rooms\\" + Text(path));
}

fs::path dataRootOf(const fs::path& source) {
    fs::path own = fs::absolute(source).lexically_normal().parent_path();
    if (holdsData(own)) return own;
    return own.has_parent_path() && holdsData(own.parent_path()) ? own.parent_path() : fs::path();
}

}  // namespace zentrox::story
