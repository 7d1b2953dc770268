// The data directories beside a story, as the game looks files up in them: by the last component of a path and
// without regard to case.
#pragma once

#include <map>
#include <set>

#include "engine/language/directories.h"
#include "platform/machine/files.h"

namespace zentrox::story {

class DataFiles {
public:
    // `root` is the directory that holds "graphics", "sounds" and so on.
    explicit DataFiles(const std::filesystem::path& root);

    // A file directly in a data directory; `path` may have directories, which count for nothing.
    bool has(Ordner directory, TextView path) const;
    // A spoken line, which may be there as mp3 or wav instead.
    bool hasSound(TextView path) const;
    // The one of these that is there, as the game looks for it; empty if none is.
    Text soundFor(TextView path) const;
    // A room, whose directories do count.
    bool hasRoom(TextView path) const;
    // The path of the game for a file in a data directory, and who knows where that is.
    static Text path(Ordner directory, TextView file) { return Text(verzeichnis(directory)) + "\\" + Text(file); }
    const Files& files() const { return files_; }
    // The files directly in a data directory, as they are spelled there.
    const std::vector<Text>& names(Ordner directory) const { return listing(directory).names; }

private:
    struct Listing {
        std::vector<Text> names;
        std::set<Text> upper;  // the same in upper case
    };
    const Listing& listing(Ordner directory) const;

    Files files_;
    mutable std::map<Ordner, Listing> listings_;
};

// The nearest of a source's own directory and the one above it that holds data directories; empty where none does.
std::filesystem::path dataRootOf(const std::filesystem::path& source);

}  // namespace zentrox::story
