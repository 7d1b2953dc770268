// The files of a story and where the page finds them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zentrox::web {

struct StoryFile {
    std::filesystem::path file;  // where it lies
    std::string path;            // as the engine in the browser sees it: "/spiel/rooms/start.lsd"
};

inline constexpr const char* storyRoot = "/spiel";

// What the engine sees a CD as, by its number from 0 up: "/cd", "/cd2", ...
std::string discRoot(std::size_t number);

// All plain files of a directory and of those below it in the order of their names, without hidden ones and without
// the directory `saves`.
std::vector<StoryFile> gather(const std::filesystem::path& directory, const std::string& root);

}  // namespace zentrox::web
