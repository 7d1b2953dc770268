// Reads sources into statements, included files in their places.
#pragma once

#include "tools/story/names.h"
#include "tools/story/sourcefiles.h"

namespace zentrox::story {

class SourceReader {
public:
    // Files are numbered in `story`, where silencing comments go as well.
    SourceReader(SourceFiles& files, Story& story) : files_(files), story_(story) {}

    std::vector<Statement> read(const std::filesystem::path& path, Findings& findings);
    std::vector<Statement> read(const std::filesystem::path& path, std::string_view utf8, Findings& findings);

    int fileNumber(const std::filesystem::path& path);

private:
    void statements(std::string_view utf8, int file, Findings& findings, std::vector<Statement>& out);
    void include(const Statement& s, Findings& findings, std::vector<Statement>& out);

    SourceFiles& files_;
    Story& story_;
    std::map<std::string, int> numbers_;
    std::vector<std::filesystem::path> open_;  // the source that is read, and those that include it
    int includes_ = 0;
};

// A file that a word in a source names, beside that source; directories may be told apart as in the game.
std::filesystem::path besideSource(const Story& story, const Token& name);

}  // namespace zentrox::story
