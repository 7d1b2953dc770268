// `zentrox-story prove`, behind its command line.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "tools/story/finding.h"

namespace zentrox::prove {

struct Call {
    std::string walks;  // a directory for the walks; empty: they are not written
    std::string graph;  // a file for the graph of the rooms
    bool statistics = false;
    bool json = false;
    bool full = false;  // without any reduction
    std::optional<double> seconds;
    std::optional<std::size_t> megabytes;
    std::optional<std::uint64_t> states;
};

// Proves a story that was read with these findings, and tells what it found; gives the exit status. Writes walks
// only where they are new or others. Throws `std::filesystem::filesystem_error` where that fails.
int run(const story::Story& story, const story::Findings& reading, const Call& call, std::ostream& out,
        std::ostream& err);

// `zentrox-story check --games`: tells which mini-games the story can't be finished without.
void tellGames(const story::Story& story, std::ostream& out, std::ostream& err);

}  // namespace zentrox::prove
