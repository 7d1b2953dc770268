// Texts as the page draws them: how long they are, where they break, conditions in words. All in UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/page/ways.h"

namespace zentrox::page {

std::size_t lengthOf(std::string_view utf8);  // characters

// About how wide a text is in the page's letters of 12.5 pixels; rather too much than too little, as each machine
// has its own.
double widthOf(std::string_view utf8);

// So many characters at most, the last of them dots where something is left out.
std::string shortened(std::string utf8, std::size_t most);
// Lines of so many characters at most, but for words that are longer; the first begins behind `before` others. At
// least one line.
std::vector<std::string> brokenInto(const std::string& utf8, std::size_t most, std::size_t before);

// `A und nicht B oder C`
std::string inWords(const story::Condition& condition);
std::string inWords(const Need& need);

}  // namespace zentrox::page
