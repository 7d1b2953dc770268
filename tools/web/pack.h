// Makes a folder that a web server can serve: the page, the engine, and a story with all its files.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace zentrox::web {

struct Order {
    std::filesystem::path story;               // its data directory
    std::vector<std::filesystem::path> discs;  // what it takes for its CD
    std::filesystem::path engine;              // where `./web` has put the engine and the page
    std::filesystem::path into;
    std::string title;  // empty: what the story calls itself
};

// Where the engine lies for a program in this directory: in the build folder beside it, or among the data of an
// installed tree. Empty if it is in neither.
std::filesystem::path engineFor(const std::filesystem::path& programDirectory);

// Converted songs and films that are in the folder already are kept. Tells what it does on `out`, what can't be
// done on `err`. False if something is missing in the folder because of that. Throws
// `std::filesystem::filesystem_error`.
bool pack(const Order& order, std::ostream& out, std::ostream& err);

}  // namespace zentrox::web
