// Makes the sound files of spoken lines, and only those whose text or voice has changed.
#pragma once

#include <filesystem>
#include <functional>

#include "tools/voices/lines.h"

namespace zentrox::voices {

struct Made {
    std::vector<std::string> written;  // names of files, in no order
    std::vector<std::string> removed;
    std::vector<std::string> failed;  // name and reason; the rest then waits for the next time
};

// Speaks one line into the file at `target`, with `work` for what lies between.
using Speaker = std::function<void(const SpokenLine& line, const std::filesystem::path& target,
                                   const std::filesystem::path& work)>;

// The way of the project: espeak-ng, sox, and our own level. An mp3 of one channel. Throws `std::runtime_error`.
Speaker speakerOf(const Table& table);

// Writes one mp3 for each line to `into`, where a hidden list keeps what they were made from, and takes away those
// of lines that there are no more. Each file appears whole or not at all. `work` is made and emptied again.
Made makeLines(const std::vector<SpokenLine>& lines, const Table& table, const std::filesystem::path& into,
               const std::filesystem::path& work, const Speaker& speak);

}  // namespace zentrox::voices
