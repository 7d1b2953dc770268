// How an author's editor is told to open a file at a line.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zentrox::author {

// `visual` and `editor` are what the environment says, null where it says nothing: a program with or without words
// of its own. An editor that needs a terminal gets one. Without any the desktop opens the file as it likes.
std::vector<std::string> editorCommand(const char* visual, const char* editor, const std::filesystem::path& file,
                                       int line);

}  // namespace zentrox::author
