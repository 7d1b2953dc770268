// The words behind the program's name.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "main/beginning.h"

namespace zentrox {

struct Options {
    std::filesystem::path directory;              // where the data directories lie, or a packed story; absolute
    std::vector<std::filesystem::path> roots;     // what is taken for the CD, in the order given; absolute
    std::string commandLine;                      // the game's own, UTF-8: the file name of a room, or empty
    bool storyNamed = false;                      // false: `directory` is the program's
    std::optional<std::filesystem::path> saves;   // where saved games are to lie; absolute
    bool portable = false;                        // all that is written stays beside the story
    Beginning beginning;                          // beside the room
    std::optional<std::filesystem::path> record;  // where the play is written down as a walk; absolute
    std::optional<std::filesystem::path> author;  // the sources of the story; absolute
    bool panel = false;                           // an author's, stands from the beginning
    bool recordGoesOn = false;                    // behind what the record holds
    bool noSound = false;                         // the machine's sound is left alone
    bool goesOn = false;                          // with the play that was saved by itself last, if there is one
};

// What the words ask for, or the exit status of a call that ends here: 0 after help and version, 2 after a wrong
// one. Help goes to the standard output, complaints to the standard error output.
struct Call {
    std::optional<Options> options;
    int status = 0;
};
Call readOptions(int count, const char* const* words, const std::filesystem::path& programDirectory);

// The roots to look for the CD in, of which the last marked one counts: what is named wins over what is mounted.
std::vector<std::filesystem::path> rootsToSearch(const Options& options,
                                                 std::vector<std::filesystem::path> mounted);

// Starts the game anew in its menu: the same directories, no room.
std::vector<std::string> restartCommand(const std::filesystem::path& program, const Options& options);

}  // namespace zentrox
