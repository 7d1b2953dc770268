// `zentrox-story page`: a story as one file for a browser, to be looked at.
#pragma once

#include <iosfwd>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace zentrox::page {

struct Order {
    std::vector<std::string> words;  // sources, or a data directory
    std::string into;
    std::string data;
    std::string title;
    std::vector<std::string> ran;
    std::string proof;
};

// Writes the page. Throws `story::WrongCall`, and `std::filesystem::filesystem_error` where it can't be written.
void write(const Order& order, std::ostream& out, std::ostream& err);

// The page around its object. Whatever stands in that stays inside of it.
std::string htmlOf(const nlohmann::ordered_json& model, const std::string& title);

}  // namespace zentrox::page
