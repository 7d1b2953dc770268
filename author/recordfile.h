// The file that a record goes to, one line after the other.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace zentrox::author {

// Each line is in the file as soon as it is told: what is played just before a crash is what a report needs most.
// So it is appended to in place, and not made anew beside itself and renamed, which would lose it all with the
// process.
class RecordFile {
public:
    // Begins the file anew, or goes on behind what it holds. Throws `std::system_error`.
    RecordFile(const std::filesystem::path& path, bool goOn);

    void line(const std::string& line) { put(line, false); }
    // Holds only as long as nothing follows: the next line takes its place.
    void tail(const std::string& line) { put(line, true); }
    // Another text in place of the last line.
    void changeLast(const std::string& line);
    // The line that stands last, tails aside; empty in the beginning.
    const std::string& last() const { return last_; }

private:
    void put(const std::string& line, bool tail);
    void write(const std::string& line);

    std::filesystem::path path_;
    std::fstream file_;
    std::uintmax_t end_ = 0;   // of what stays
    std::uintmax_t size_ = 0;  // with the tail
    std::uintmax_t lastAt_ = 0;
    std::string last_;
    bool failed_ = false;
};

}  // namespace zentrox::author
