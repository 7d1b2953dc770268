#include "main/story.h"

#include <algorithm>
#include <sstream>

#include "platform/machine/system.h"

namespace zentrox {

namespace fs = std::filesystem;

namespace {

constexpr const char* packedExtension = ".zentrox";
constexpr const char* portableMark = "portable";
constexpr const char* usualDataDirectories = "/usr/local/share:/usr/share";

bool holdsData(const fs::path& directory) {
    const Files files(directory);
    constexpr std::array names{"rooms\\", "graphics\\", "sounds\\", "items\\"};
    return std::any_of(names.begin(), names.end(), [&](const char* name) { return files.holdsFile(name); });
}

bool isCD(const fs::path& root) {
    return Files(root).exists("Zentrox");
}

bool isPacked(const fs::path& file) {
    std::error_code error;
    return file.extension() == packedExtension && fs::is_regular_file(file, error);
}

bool isStory(const fs::path& place) {
    std::error_code error;
    return isPacked(place) || (fs::is_directory(place, error) && holdsData(place));
}

fs::path firstStoryIn(const fs::path& directory, bool (*wanted)(const fs::path&)) {
    std::vector<fs::path> stories;
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end; entry.increment(error))
        if (wanted(entry->path())) stories.push_back(entry->path());
    return stories.empty() ? fs::path() : *std::min_element(stories.begin(), stories.end());
}

std::vector<fs::path> dataDirectories(const fs::path& program, const Environment& environment) {
    std::vector<fs::path> directories{dataDirectoryFor(program).parent_path()};
    if (const PlayersHome home = playersHome(environment); !home.data.empty())
        directories.push_back(home.data.parent_path());
    const char* const listed = environment("XDG_DATA_DIRS");
    std::istringstream list(listed != nullptr && *listed != '\0' ? listed : usualDataDirectories);
    for (std::string directory; std::getline(list, directory, ':');)
        if (fs::path(directory).is_absolute()) directories.emplace_back(directory);
    return directories;
}

// Small letters, digits and dashes.
std::string plainName(const std::string& name) {
    std::string plain;
    for (const char c : name) {
        const bool letter = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        if (letter)
            plain += c;
        else if (c >= 'A' && c <= 'Z')
            plain += static_cast<char>(c - 'A' + 'a');
        else if (!plain.empty() && plain.back() != '-')
            plain += '-';
    }
    constexpr std::size_t longest = 32;
    plain = plain.substr(0, longest);
    while (plain.ends_with('-')) plain.pop_back();
    return plain.empty() ? "story" : plain;
}

class Fingerprint {
public:
    void add(TextView bytes) {
        constexpr std::uint64_t prime = 0x100000001B3;
        for (const char c : bytes) value_ = (value_ ^ static_cast<unsigned char>(c)) * prime;
        value_ = (value_ ^ bytes.size()) * prime;
    }
    std::string text() const {
        std::ostringstream out;
        out << std::hex << value_;
        return out.str();
    }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

}  // namespace

fs::path storyToPlay(const Options& options, const fs::path& programDirectory, const std::vector<fs::path>& roots,
                     const Environment& environment) {
    if (options.storyNamed) return options.directory;
    if (holdsData(programDirectory) || std::any_of(roots.begin(), roots.end(), isCD)) return programDirectory;
    if (const fs::path beside = firstStoryIn(programDirectory, isPacked); !beside.empty()) return beside;
    for (const fs::path& directory : dataDirectories(programDirectory, environment))
        if (const fs::path story = firstStoryIn(directory / "zentrox/stories", isStory); !story.empty())
            return story;
    return programDirectory;
}

std::string directoryNameOf(const Titel& titel, const Files& files, const fs::path& story) {
    if (!titel.Kennung.empty()) return titel.Kennung;
    Fingerprint fingerprint;
    const std::vector<Text> rooms = files.list("rooms\\");
    for (const Text& room : rooms) {
        fingerprint.add(upper(room));
        fingerprint.add(files.read("rooms\\" + room));
    }
    if (rooms.empty()) fingerprint.add(story.string());
    return plainName(story.stem().string()) + "-" + fingerprint.text();
}

PlacesAsked placesAsked(const Options& options, const fs::path& programDirectory, const fs::path& story,
                        std::string name) {
    std::error_code error;
    const bool portable = options.portable || fs::is_regular_file(programDirectory / portableMark, error);
    return {story, std::move(name), options.saves, portable};
}

}  // namespace zentrox
