// The file system as the game sees it. A path of the game is text in code page 1252 with backslashes, one at its
// end where it names a directory. The case of a name does not matter where the exact spelling is not there. The
// story may be packed: its one file then takes the place of the program's directory.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/machine/archive.h"
#include "platform/values/limits.h"
#include "platform/values/text.h"

namespace zentrox {

class Files {
public:
    // `programDirectory` is where the data directories lie, and "saves" unless `keepSavesIn` says otherwise. What
    // is packed is read instead of it.
    Files(const std::filesystem::path& programDirectory, std::unique_ptr<Archive> packed = nullptr);

    // The program's directory, with a backslash at its end.
    const Text& programDirectory() const { return programDirectory_; }

    // The directory of the saved games, with a backslash at its end. It need not be there.
    const Text& savesDirectory() const { return savesDirectory_; }
    void keepSavesIn(const std::filesystem::path& directory);

    // From now on nothing is found that lies outside of the program's directory, of the saved games' and of those
    // that are admitted, wherever a path or a link leads, nor what is neither a plain file nor a directory. Copies
    // share this, older ones too.
    void confine();
    void admit(const std::filesystem::path& directory);

    // The path of the system for a path of the game, each component found without regard to case. From the first
    // component on that does not exist, the rest is as spelled. A packed file has a path under which it can be
    // opened soon, in this process. Empty for what is not to be found.
    std::filesystem::path systemPath(TextView path) const;
    // The path of the game for a path of the system, as it stands.
    static Text gamePath(const std::filesystem::path& path);

    // True for a plain file.
    bool exists(TextView path) const;
    // True if the directory exists and holds a plain file directly.
    bool holdsFile(TextView directory) const;
    // The names of the plain files in a directory, in order without regard to case; empty if it can't be read.
    std::vector<Text> list(TextView directory) const;
    // Throws `DataError` that names the file if it can't be read or has more than `most` bytes.
    std::string read(TextView path, std::uint64_t most = limits::fileBytes) const;
    // Makes a directory, that of the saved games with all above it; nothing happens if it is there or can't be
    // made.
    void makeDirectory(TextView path) const;

    // For people: relative to the program's directory if it lies under it, else whole; with backslashes and spelled
    // as found on the disk.
    Text display(TextView path) const;

private:
    // What is below the program's directory in a path; nothing if the path leads elsewhere.
    std::optional<TextView> below(TextView path) const;
    // The same, where the program's directory is a packed story.
    std::optional<TextView> packedPath(TextView path) const { return packed_ ? below(path) : std::nullopt; }
    std::optional<std::size_t> packedFile(TextView path) const;
    [[noreturn]] void failUnreadable(TextView path) const;
    std::filesystem::path foundOnDisk(TextView path) const;
    bool mayBeRead(const std::filesystem::path& path) const;

    struct Bounds {
        bool hold = false;
        std::vector<std::filesystem::path> directories;  // canonical
    };

    std::filesystem::path root_;
    Text programDirectory_;
    std::shared_ptr<Packed> packed_;
    std::filesystem::path saves_;
    Text savesDirectory_;
    std::shared_ptr<Bounds> bounds_ = std::make_shared<Bounds>();
};

}  // namespace zentrox
