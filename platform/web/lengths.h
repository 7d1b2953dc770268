// How long each sound and each film of the story lasts, told by a list: the page can't decode a file before it has
// been fetched, and the game asks at once.
#pragma once

#include <cstdint>
#include <filesystem>

namespace zentrox::web {

struct Lengths {
    std::int64_t sound = 0;  // milliseconds; 0 where there is none
    std::int64_t film = 0;
};

// The list is the file that ZENTROX_LENGTHS in the environment names, else "/lengths". A line of it has the two
// lengths and the path of the file as the program names it, a blank between them.
Lengths lengthsOf(const std::filesystem::path& file);

}  // namespace zentrox::web
