// zentrox-digits COUNT FILE: writes the first characters of pi, the point counted, as the pi game asks them.
#include <charconv>
#include <cstring>
#include <fstream>
#include <iostream>

#include "tools/digits/pi.h"

int main(int count, char** arguments) {
    constexpr int callFailed = 2;
    std::size_t characters = 0;
    if (count == 3) std::from_chars(arguments[1], arguments[1] + std::strlen(arguments[1]), characters);
    if (characters == 0) {
        std::cerr << "usage: zentrox-digits COUNT FILE\n";
        return callFailed;
    }
    std::ofstream file(arguments[2], std::ios::binary);
    file << zentrox::piCharacters(characters);
    file.close();
    if (file) return 0;
    std::cerr << "zentrox-digits: " << arguments[2] << " can't be written\n";
    return 1;
}
