// The two ways out of a deep call.
#pragma once

#include <stdexcept>

#include "platform/values/text.h"

namespace zentrox {

// Data that can't be used. The message is German, in code page 1252, and names the file and the place in it.
class DataError : public std::runtime_error {
public:
    explicit DataError(const Text& message) : std::runtime_error(message) {}
    Text message() const { return what(); }
};

// The end of the process from inside any wait; `main` alone catches it.
struct ProgramEnd {
    int status = 0;
};

}  // namespace zentrox
