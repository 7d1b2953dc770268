// Reads compiled data files, whoever wrote them, into a story.
#pragma once

#include <filesystem>

#include "tools/story/finding.h"

namespace zentrox::story {

// A room or script file, told by its extension, from memory. Its place among the files of the story is the last
// one. A damaged one gives a finding and nothing else.
void readRoomData(std::string_view bytes, const Text& file, const std::string& name, Story& story,
                  Findings& findings);
void readScriptData(std::string_view bytes, const Text& file, const std::string& name, Story& story,
                    Findings& findings);

// True for a directory with rooms or item scripts in it.
bool isDataDirectory(const std::filesystem::path& directory);
// All rooms, those in directories below included, and all item scripts of a data directory.
void readDataDirectory(const std::filesystem::path& directory, Story& story, Findings& findings);
// One file. Its name below the directory of rooms is kept where it lies in one.
void readDataFile(const std::filesystem::path& path, Story& story, Findings& findings);
// The data directory that a room or script file belongs to; empty if it lies alone.
std::filesystem::path dataDirectoryOf(const std::filesystem::path& file);

}  // namespace zentrox::story
