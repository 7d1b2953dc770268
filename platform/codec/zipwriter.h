// Writes the archives that `openZip` reads, the same bytes for the same files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace zentrox {

struct PackedFile {
    std::string name;  // in the archive, UTF-8 with slashes
    std::filesystem::path file;
    std::string bytes;  // what it holds, where `file` is empty
    bool runs = false;  // it is a program
};

// In the order given, all of one date, seconds since 1970. What is pressed already is stored, all else deflated.
// Throws `std::system_error` where a file can't be read or the archive not be written; an older one then stands.
void writeZip(const std::filesystem::path& target, const std::vector<PackedFile>& files, std::int64_t date);

}  // namespace zentrox
