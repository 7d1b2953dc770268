#include "platform/machine/places.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <system_error>

#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace fs = std::filesystem;

namespace {

constexpr const char* programName = "zentrox";
constexpr const char* savesName = "saves";
constexpr const char* settingsName = "settings";
constexpr const char* portableName = "zentrox-portable";
constexpr const char* knownPlaces = "places.txt";    // one directory a line
constexpr const char* fetchedFiles = "fetched.txt";  // target directory, tab, file that was copied

fs::path absoluteFrom(const Environment& environment, const char* name) {
    const char* const value = environment(name);
    const fs::path path = value != nullptr ? value : "";
    return path.is_absolute() ? path.lexically_normal() : fs::path();
}

fs::path homeDirectory(const Environment& environment) {
    fs::path home = absoluteFrom(environment, "HOME");
    if (!home.empty()) return home;
    const passwd* const user = getpwuid(getuid());
    return user != nullptr && user->pw_dir != nullptr && *user->pw_dir == '/' ? user->pw_dir : "";
}

fs::path ownDirectory(const Environment& environment, const char* variable, const char* below) {
    fs::path base = absoluteFrom(environment, variable);
    if (base.empty()) {
        base = homeDirectory(environment);
        if (base.empty()) return {};
        base /= below;
    }
    return base / programName;
}

bool isDirectory(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

// Whether saved games can be put into the directory `saves` beside the data. What came with a story may be a link
// to anywhere, and is left alone.
bool takesSaves(const fs::path& data) {
    const fs::path saves = data / savesName;
    std::error_code error;
    if (fs::is_symlink(saves, error)) return false;
    return access((isDirectory(saves) ? saves : data).c_str(), W_OK | X_OK) == 0;
}

fs::path ownSaves(const PlacesAsked& asked, const PlayersHome& home) {
    return home.data.empty() ? fs::path() : home.data / asked.name / savesName;
}

// Whether the settings can lie in that directory below `base`, with the same care.
bool takesSettings(const fs::path& settings, const fs::path& base) {
    std::error_code error;
    const fs::path below = settings.lexically_relative(base);
    if (fs::weakly_canonical(settings, error) != fs::weakly_canonical(base, error) / below) return false;
    for (fs::directory_iterator entry(settings, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown;
        if (entry->is_symlink(unknown)) return false;
    }
    return true;
}

fs::path portablePlace(const fs::path& story, const std::string& name) {
    return isDirectory(story) ? story : story.parent_path() / portableName / name;
}

std::vector<std::string> linesOf(const fs::path& file) {
    std::vector<std::string> lines;
    std::ifstream in(file, std::ios::binary);
    for (std::string line; std::getline(in, line);) lines.push_back(std::move(line));
    return lines;
}

void addLine(const fs::path& file, const std::string& line) {
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    try {
        replaceFile(file, readFile(file).value_or("") + line + '\n');
    } catch (const std::system_error&) {
        // Then it is asked for once more the next time.
    }
}

void addPlace(std::vector<fs::path>& places, const fs::path& place, const fs::path& saves) {
    std::error_code error;
    if (place.empty() || !isDirectory(place) || fs::is_symlink(place, error) || fs::equivalent(place, saves, error))
        return;
    if (std::find(places.begin(), places.end(), place) == places.end()) places.push_back(place);
}

std::vector<fs::path> plainFiles(const fs::path& directory) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown;
        const bool plain = entry->is_regular_file(unknown) && !entry->is_symlink(unknown);
        if (plain && entry->file_size(unknown) <= limits::savedGameBytes) files.push_back(entry->path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string bytesOf(const fs::path& file) {
    return readFile(file).value_or("");
}

bool holdsGame(const fs::path& directory, const std::string& bytes) {
    const auto files = plainFiles(directory);
    return std::any_of(files.begin(), files.end(), [&](const fs::path& file) {
        std::error_code error;
        return fs::file_size(file, error) == bytes.size() && bytesOf(file) == bytes;
    });
}

fs::path freeName(const fs::path& file, const fs::path& directory) {
    fs::path target = directory / file.filename();
    std::error_code error;
    for (int number = 2; fs::exists(target, error); ++number)
        target =
            directory / (file.stem().string() + " (" + std::to_string(number) + ")" + file.extension().string());
    return target;
}

bool copied(const fs::path& file, const fs::path& directory) {
    const std::string bytes = bytesOf(file);
    if (holdsGame(directory, bytes)) return true;
    std::error_code error;
    fs::create_directories(directory, error);
    const fs::path target = freeName(file, directory);
    try {
        replaceFile(target, bytes);
    } catch (const std::system_error&) {
        return false;
    }
    fs::last_write_time(target, fs::last_write_time(file, error), error);
    return true;
}

}  // namespace

const char* processEnvironment(const char* name) {
    return std::getenv(name);
}

PlayersHome playersHome(const Environment& environment) {
    return {ownDirectory(environment, "XDG_DATA_HOME", ".local/share"),
            ownDirectory(environment, "XDG_CONFIG_HOME", ".config")};
}

Places placesFor(const PlacesAsked& asked, const PlayersHome& home) {
    const bool folder = isDirectory(asked.story);
    const fs::path portable = portablePlace(asked.story, asked.name);
    Places places;
    places.settings = asked.portable ? portable / settingsName : home.settings;
    const fs::path base = folder ? asked.story : asked.story.parent_path();
    if (asked.portable && !takesSettings(places.settings, base)) places.settings = home.settings;
    if (asked.saves) {
        places.saves = *asked.saves;
        return places;
    }
    const fs::path own = ownSaves(asked, home);
    const bool beside = asked.portable || own.empty() || (folder && takesSaves(asked.story));
    places.saves = beside ? portable / savesName : own;
    if (asked.portable) return places;
    if (folder) addPlace(places.earlier, asked.story / savesName, places.saves);
    addPlace(places.earlier, own, places.saves);
    if (!own.empty())
        for (const std::string& line : linesOf(own.parent_path() / knownPlaces))
            addPlace(places.earlier, line, places.saves);
    return places;
}

void gatherSaves(const Places& places, const PlacesAsked& asked, const PlayersHome& home) {
    const fs::path own = ownSaves(asked, home);
    if (asked.portable || asked.saves || own.empty()) return;
    const fs::path list = own.parent_path() / fetchedFiles;
    const auto lines = linesOf(list);
    const std::set<std::string> fetched(lines.begin(), lines.end());
    for (const fs::path& place : places.earlier)
        for (const fs::path& file : plainFiles(place)) {
            const std::string line = places.saves.string() + '\t' + file.string();
            if (fetched.count(line) == 0 && copied(file, places.saves)) addLine(list, line);
        }
    if (places.saves == own || plainFiles(places.saves).empty()) return;
    const auto known = linesOf(own.parent_path() / knownPlaces);
    if (std::find(known.begin(), known.end(), places.saves.string()) == known.end())
        addLine(own.parent_path() / knownPlaces, places.saves.string());
}

}  // namespace zentrox
