// The reference page of all commands, made from the table that the interpreter itself runs by.
#pragma once

#include <string>

namespace zentrox::story {

// Markdown, UTF-8.
std::string referencePage();

}  // namespace zentrox::story
