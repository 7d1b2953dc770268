#include "tools/story/datafiles.h"

#include <algorithm>

#include "engine/state/felder.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t extensionLength = 3;  // without the dot

// Any directory of data but that of the games tells that data lies here: games of a story may be sources as well.
bool holdsData(const fs::path& directory) {
    const Files files(directory);
    std::error_code error;
    return std::any_of(Datenverzeichnisse.begin(), Datenverzeichnisse.end(), [&](const Datenverzeichnis& known) {
        return known.name != verzeichnis(Ordner::games) && fs::is_directory(files.systemPath(known.name), error);
    });
}

}  // namespace

DataFiles::DataFiles(const fs::path& root) : files_(root) {}

bool DataFiles::has(Ordner directory, TextView path) const {
    return listing(directory).upper.contains(upper(Dateiname(path)));
}

const DataFiles::Listing& DataFiles::listing(Ordner directory) const {
    const auto [at, isNew] = listings_.try_emplace(directory);
    if (isNew) at->second.names = files_.list(verzeichnis(directory));
    if (isNew)
        for (const Text& name : at->second.names) at->second.upper.insert(upper(name));
    return at->second;
}

bool DataFiles::hasSound(TextView path) const {
    return !soundFor(path).empty();
}

Text DataFiles::soundFor(TextView path) const {
    const Text stem(path.substr(0, path.size() - std::min(path.size(), extensionLength)));
    for (const Text& candidate : {Text(path), stem + "mp3", stem + "wav"})
        if (has(Ordner::sounds, candidate)) return candidate;
    return {};
}

bool DataFiles::hasRoom(TextView path) const {
    return files_.exists(Text(verzeichnis(Ordner::rooms)) + "\\" + Text(path));
}

fs::path dataRootOf(const fs::path& source) {
    fs::path own = fs::absolute(source).lexically_normal().parent_path();
    if (holdsData(own)) return own;
    return own.has_parent_path() && holdsData(own.parent_path()) ? own.parent_path() : fs::path();
}

}  // namespace zentrox::story
