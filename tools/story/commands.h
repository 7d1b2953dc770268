// The command line of zentrox-story.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zentrox::story {

// Exit statuses.
constexpr int clean = 0;
constexpr int hasFindings = 1;
constexpr int wrongCall = 2;

int run(std::vector<std::string> arguments, std::ostream& out, std::ostream& err);

}  // namespace zentrox::story
