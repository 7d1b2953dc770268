// The command line in the language of the authors: CLI11 knows it in English only.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace zentrox::story {

// For the help of a program and of the commands that are added to it afterwards.
void speakGerman(CLI::App& app);

// What is wrong with a call.
std::string inGerman(const CLI::ParseError& error);

}  // namespace zentrox::story
