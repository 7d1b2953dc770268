#include "platform/codec/soundfont.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

#include "platform/machine/system.h"
#include "platform/values/text.h"

namespace zentrox {

namespace {

namespace fs = std::filesystem;
using Paths = std::vector<fs::path>;

// What the distributions call their choice comes before anything else that lies there.
constexpr std::array chosenFonts{
    "/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/soundfonts/default.sf2",    "/usr/share/soundfonts/FluidR3_GM.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",
};
constexpr std::array fontDirectories{
    "/usr/share/sounds/sf2",       "/usr/share/soundfonts", "/usr/local/share/soundfonts",
    "/usr/local/share/sounds/sf2", "/usr/share/sounds/sf3",
};

// By its content as well: what only has the name would be tried as all kinds of things.
bool isFont(const fs::path& file) {
    const auto extension = lower(file.extension().string());
    if (extension != ".sf2" && extension != ".sf3") return false;
    std::array<char, 12> begin{};
    std::ifstream(file, std::ios::binary).read(begin.data(), begin.size());
    const std::string_view magic(begin.data(), begin.size());
    return magic.starts_with("RIFF") && magic.ends_with("sfbk");
}

void addFonts(Paths& fonts, const fs::path& directory) {
    Paths found;
    std::error_code failed;
    for (fs::directory_iterator entry(directory, failed), end; !failed && entry != end; entry.increment(failed))
        if (isFont(entry->path())) found.push_back(entry->path());
    std::sort(found.begin(), found.end());
    fonts.insert(fonts.end(), found.begin(), found.end());
}

void addNamed(Paths& fonts, const std::string& list) {
    for (std::size_t from = 0; from < list.size();) {
        const auto to = std::min(list.find_first_of(":;", from), list.size());
        const fs::path font = list.substr(from, to - from);
        if (isFont(font)) fonts.push_back(font);
        from = to + 1;
    }
}

}  // namespace

Paths soundFonts(const fs::path& musics) {
    Paths fonts;
    addFonts(fonts, musics);
    if (const char* named = std::getenv("SDL_SOUNDFONTS")) addNamed(fonts, named);
    for (const fs::path font : chosenFonts)
        if (isFont(font)) fonts.push_back(font);
    for (const auto* directory : fontDirectories) addFonts(fonts, directory);
    addFonts(fonts, dataDirectoryFor(programDirectory()) / "soundfonts");
    return fonts;
}

}  // namespace zentrox
