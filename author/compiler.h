// The sources of a story, compiled into its data directory as often as they change.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tools/story/story.h"

namespace zentrox::author {

class Compiler {
public:
    // `sources` is a directory of sources, or one of them; `data` is where the story lies.
    Compiler(std::filesystem::path sources, std::filesystem::path data)
        : sources_(std::move(sources)),
          data_(std::move(data)) {}

    struct Result {
        std::vector<std::string> findings;           // UTF-8, with file and line; empty: it has worked
        std::vector<std::filesystem::path> changed;  // files of data
    };
    // Where anything is wrong no file is changed. Throws nothing.
    Result compile();

    // What was compiled last without a finding; empty before.
    const story::Story& story() const { return story_; }
    // The whole path of one of its files.
    std::filesystem::path fileOf(const story::Place& place) const;
    // Where sources lie, those that others include among them; also of the last try.
    const std::set<std::filesystem::path>& directories() const { return directories_; }
    bool isSource(const std::filesystem::path& file) const;

private:
    void note(const story::Story& story);

    std::filesystem::path sources_;
    std::filesystem::path data_;
    story::Story story_;
    std::set<std::filesystem::path> directories_;
    std::set<std::filesystem::path> files_;
};

// Where the data of these sources lies, as the tools find it; empty where there is none.
std::filesystem::path dataOf(const std::filesystem::path& sources);

}  // namespace zentrox::author
