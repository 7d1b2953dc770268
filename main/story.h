// Which story is played, and where its saved games lie.
#pragma once

#include <filesystem>
#include <vector>

#include "engine/state/titel.h"
#include "main/options.h"
#include "platform/machine/files.h"
#include "platform/machine/places.h"

namespace zentrox {

// The story that the call names; else what lies in the program's directory or on a CD; else the first one that is
// installed, beside the program or where the desktop keeps data; else the program's directory as it is. `roots` is
// where a CD may stand.
std::filesystem::path storyToPlay(const Options& options, const std::filesystem::path& programDirectory,
                                  const std::vector<std::filesystem::path>& roots,
                                  const Environment& environment = processEnvironment);

// What a directory for this story is called: its own name, or one made of the directory's and of all rooms, which
// two stories do not share.
std::string directoryNameOf(const Titel& titel, const Files& files, const std::filesystem::path& story);

// What the options ask for, and portable mode by a file "portable" beside the program.
PlacesAsked placesAsked(const Options& options, const std::filesystem::path& programDirectory,
                        const std::filesystem::path& story, std::string name);

}  // namespace zentrox
