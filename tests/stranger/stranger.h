// A story of a stranger's, written file by file, and the probe that plays it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "engine/state/zustand.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {

// What the probe said and took.
struct Played {
    int status = 0;
    std::string said;
    double seconds = 0;    // of the processor's time
    double megabytes = 0;  // at its largest
};

struct Command {
    std::int32_t opcode;
    std::string argument;  // UTF-8
};

// A bitmap of one white pixel.
std::string whitePixel();

class Stranger : public testing::Test {
protected:
    Stranger();

    static Skript script(const std::vector<Command>& commands);
    // A room of objects in a row, each with a script for the left button.
    static Raum room(const std::vector<std::pair<std::string, std::vector<Command>>>& objects,
                     const std::vector<Command>& start = {});
    void write(const std::string& file, const Raum& room) const;

    Played play(const std::string& walk, std::vector<std::string> options = {}) const;
    Played run(std::vector<std::string> command) const;

    TempDirectory directory;
    // The story lies two directories deep, so that names have somewhere to lead to.
    const std::filesystem::path story = directory.path() / "fremde" / "geschichte";
};

// Sanitizers take their own part.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool measured = false;
#else
constexpr bool measured = true;
#endif

}  // namespace zentrox::test
