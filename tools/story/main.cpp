// zentrox-story: makes the data files of a story from readable sources, checks them, and reads them back.
#include <iostream>

#include "tools/story/commands.h"

int main(int argc, char** argv) {
    return zentrox::story::run(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
