// A program's words, for the completion of a shell and for its manual page: made from the model that also reads
// them.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace zentrox {

// A script for "bash", "zsh" or "fish", or for "man" the lists of options in mdoc; empty for anything else.
std::string wordsFor(const CLI::App& app, const std::string& whom);

// Gives the program the option --words-for WHOM, which prints that and ends; help does not show it. To be called
// when all other options are there.
void addWordsFor(CLI::App& app);

}  // namespace zentrox
