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

    struct Finding {
        std::filesystem::path file{};  // whole; empty where it is about none
        int line = 0;
        bool isError = true;
        std::string message;  // UTF-8
        std::string inFull;   // as the terminal has it, with file and line
    };
    struct Result {
        bool worked = false;
        std::vector<Finding> findings;               // of one that has worked there are only warnings
        std::vector<std::filesystem::path> changed;  // files of data
    };
    // Where anything is wrong no file is changed. Throws nothing.
    Result compile();

    // What was compiled last without an error, and its scripts; empty before.
    const story::Story& story() const { return story_; }
    const std::vector<story::ScriptView>& scripts() const { return scripts_; }
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
    std::vector<story::ScriptView> scripts_;  // of `story_`
    std::set<std::filesystem::path> directories_;
    std::set<std::filesystem::path> files_;
};

// "keller.story:14: ...", short enough to stand in a picture.
std::string shortly(const Compiler::Finding& finding);

// Where the data of these sources lies, as the tools find it; empty where there is none.
std::filesystem::path dataOf(const std::filesystem::path& sources);

}  // namespace zentrox::author
