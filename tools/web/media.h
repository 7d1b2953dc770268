// Sounds, songs and films as a browser can play them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace zentrox::web {

// A program that is not there; the message names it and what it was wanted for.
struct MissingTool : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Media { none, sound, song, film };

struct MediaFacts {
    Media kind = Media::none;
    std::int64_t sound = 0;  // milliseconds as the program counts them, 0 for none
    std::int64_t film = 0;
    bool playable = false;  // as it is, by every browser
};

MediaFacts factsOf(const std::filesystem::path& file);

// "mp3" or "webm".
const char* extensionOf(Media kind);

// Writes what a browser plays instead of a file that is not playable. `musics` may hold a sound font of the story's
// own. Throws `MissingTool`, or `std::runtime_error` where a tool fails.
void convert(const std::filesystem::path& file, const MediaFacts& facts, const std::filesystem::path& musics,
             const std::filesystem::path& target);

}  // namespace zentrox::web
