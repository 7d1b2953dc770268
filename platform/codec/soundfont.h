// Where a General MIDI sound font may lie.
#pragma once

#include <filesystem>
#include <vector>

namespace zentrox {

// The sound fonts there are, the best one first: those of the data directory `musics`, those that the environment
// variable SDL_SOUNDFONTS names, those of the system's packages, those that came with the program.
std::vector<std::filesystem::path> soundFonts(const std::filesystem::path& musics);

}  // namespace zentrox
