// zentrox-digits COUNT FILE: writes the first characters of pi, the point counted, as the pi game asks them.
#include <charconv>
#include <cstring>
#include <iostream>
#include <system_error>

#include "platform/machine/replace_file.h"
#include "tools/digits/pi.h"
#include "tools/reasons/reasons.h"

int main(int count, char** arguments) {
    constexpr int callFailed = 2;
    std::size_t characters = 0;
    if (count == 3) std::from_chars(arguments[1], arguments[1] + std::strlen(arguments[1]), characters);
    if (characters == 0) {
        std::cerr << "usage: zentrox-digits COUNT FILE\n";
        return callFailed;
    }
    try {
        zentrox::replaceFile(arguments[2], zentrox::piCharacters(characters));
    } catch (const std::system_error& error) {
        std::cerr << "zentrox-digits: " << zentrox::cannotWrite(arguments[2], error) << '\n';
        return 1;
    }
    return 0;
}
