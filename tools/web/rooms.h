// Which files a room asks for, so that a page can fetch them ahead.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "engine/state/zustand.h"

namespace zentrox::web {

// Paths of the game, as the story names them below its data directories ("graphics\Hof.jpg"), each once.
struct RoomNeeds {
    Text room;
    std::vector<Text> files;
    std::vector<Text> next;  // the rooms that it leads to
};

// Of each room of a data directory. A room that can't be read needs nothing.
std::vector<RoomNeeds> roomNeeds(const std::filesystem::path& directory);

}  // namespace zentrox::web
