// Walks from anywhere: commands, or one line that is none.
#include <cstdlib>

#include "fuzz/file_fuzz.h"
#include "tools/probe/walk.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox::probe;
    try {
        const Walk walk = parseWalk("walk", std::string(reinterpret_cast<const char*>(data), size));
        for (const Command& command : walk.commands)
            if (command.verb == nullptr || command.line < 1) std::abort();
    } catch (const WalkError& error) {
        if (std::string(error.what()).rfind("walk:", 0) != 0) std::abort();
    }
    return 0;
}
