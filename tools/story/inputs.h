// What the words of a command line stand for: sources, compiled files, directories of either.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zentrox::story {

// What a command line cannot mean. The text tells why.
struct WrongCall {
    std::string why;
};

// Throws `WrongCall` for a word that names nothing.
void needAll(const std::vector<std::string>& words);

// Files as they are, directories as the sources that lie directly in them. Throws `WrongCall` where there are none.
std::vector<std::filesystem::path> sourcesOf(const std::vector<std::string>& words);
// The sources beside these that are not among them: the rest of the story, most likely.
std::vector<std::filesystem::path> neighboursOf(const std::vector<std::filesystem::path>& sources);

// Compiled data that words stand for.
struct DataInputs {
    std::vector<std::filesystem::path> directories;  // with rooms and items below them
    std::vector<std::filesystem::path> files;        // each alone, those of other directories included
};
// Nothing in either if all words stand for sources. Throws `WrongCall` if some do and some don't.
DataInputs dataOf(const std::vector<std::string>& words);

}  // namespace zentrox::story
