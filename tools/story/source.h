// Turns compiled rooms and scripts into sources.
#pragma once

#include <filesystem>

#include "tools/story/story.h"

namespace zentrox::story {

// The source of one room, and of all item scripts together, UTF-8. Compiled, it gives just the same fields.
// `itemPictures` are names of files among which the picture of an item is sought by its base name.
std::string roomSource(const StoryRoom& room);
std::string itemsSource(const std::vector<StoryScript>& scripts, const std::vector<Text>& itemPictures);

// One file of source a room and one for the items, by their names; rooms come first.
std::vector<std::pair<std::string, std::string>> sourceFiles(const Story& story,
                                                             const std::vector<Text>& itemPictures);

}  // namespace zentrox::story
