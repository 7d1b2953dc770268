// The file system as the game sees it. A path of the game is text in code page 1252 with backslashes, one at its
// end where it names a directory. The case of a name does not matter where the exact spelling is not there.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/values/text.h"

namespace zentrox {

class Files {
public:
    // `programDirectory` is where the data directories and "saves" lie.
    explicit Files(const std::filesystem::path& programDirectory);

    // The program's directory, with a backslash at its end.
    const Text& programDirectory() const { return programDirectory_; }

    // The path of the system for a path of the game, each component found without regard to case. From the first
    // component on that does not exist, the rest is as spelled.
    std::filesystem::path systemPath(TextView path) const;
    // The path of the game for a path of the system, as it stands.
    static Text gamePath(const std::filesystem::path& path);

    // True for a plain file.
    bool exists(TextView path) const;
    // True if the directory exists and holds a plain file directly.
    bool holdsFile(TextView directory) const;
    // The names of the plain files in a directory, in order without regard to case; empty if it can't be read.
    std::vector<Text> list(TextView directory) const;
    // Throws `DataError` that names the file if it can't be read.
    std::string read(TextView path) const;
    // Makes one directory; nothing happens if it is there or can't be made.
    void makeDirectory(TextView path) const;

    // For people: relative to the program's directory if it lies under it, else whole; with backslashes and spelled
    // as found on the disk.
    Text display(TextView path) const;

private:
    std::filesystem::path root_;
    Text programDirectory_;
};

}  // namespace zentrox
