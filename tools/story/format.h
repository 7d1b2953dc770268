// Sets a source in the one way in which all are set: what is inside of what shows by four blanks, texts of several
// lines stand below each other, and the language's own words have one spelling.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zentrox::story {

// The same source, well set; twice gives the same as once. What it compiles to stays as it is, and so do comments,
// a byte order mark, and the kind of line end that most lines have. A line that can't be read is left alone.
// Nothing if the file is no text in UTF-8 at all.
std::optional<std::string> formatted(std::string_view utf8);

}  // namespace zentrox::story
