// A story as one thing: a file that the game plays as it is, or a folder with the game in it.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

namespace zentrox::story {

struct PackWishes {
    std::filesystem::path story;  // its data directory
    std::filesystem::path
        into;              // the file, or with `program` the folder to write; empty for one named after the story
    bool program = false;  // with the game
    std::filesystem::path player;  // an unpacked archive of the game; empty for the one that this program lies in
};

// Gives an exit status of the command line. Throws `WrongCall` and `std::filesystem::filesystem_error`.
int pack(const PackWishes& wishes, std::ostream& out, std::ostream& err);

}  // namespace zentrox::story
