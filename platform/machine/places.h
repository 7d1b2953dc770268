// Where a player's saved games and settings lie: beside the story if it can be written to, else in the player's own
// directories, as the desktop's rules name them.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zentrox {

// The player's directories for data and for settings, both ending in "zentrox"; empty if nobody knows a home.
struct PlayersHome {
    std::filesystem::path data;
    std::filesystem::path settings;
};

// What an environment variable holds, or null.
using Environment = std::function<const char*(const char*)>;
const char* processEnvironment(const char* name);

// XDG_DATA_HOME and XDG_CONFIG_HOME count if they are absolute; else it is .local/share and .config in HOME, or in
// the home directory that the system has for this user where HOME is not absolute.
PlayersHome playersHome(const Environment& environment = processEnvironment);

struct PlacesAsked {
    std::filesystem::path story;                 // a data directory or a packed story; absolute
    std::string name;                            // of the story, as a directory may be called
    std::optional<std::filesystem::path> saves;  // the player says where
    bool portable = false;                       // nothing outside of the directory that the story lies in
};

struct Places {
    std::filesystem::path saves;                 // need not be there
    std::filesystem::path settings;              // a directory that need not be there
    std::vector<std::filesystem::path> earlier;  // where saved games of this story may also lie
};

// A packed story's games never lie inside of it. What lies in `earlier` is there and is not `saves`.
Places placesFor(const PlacesAsked& asked, const PlayersHome& home);

// Copies what lies in the earlier places, each file once ever; a file of that name that is there already stays, and
// the copy gets a number. Notes where this story's games lie now, for the day when it is played from another place.
// Where the disk does not allow one of it, that is left out.
void gatherSaves(const Places& places, const PlacesAsked& asked, const PlayersHome& home);

}  // namespace zentrox
