// Where a record goes to, one line after the other.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace zentrox::author {

class RecordLines {
public:
    virtual ~RecordLines() = default;
    virtual void line(const std::string& line) = 0;
    // Holds only as long as nothing follows: the next line takes its place.
    virtual void tail(const std::string& line) = 0;
    // Another text in place of the last line.
    virtual void changeLast(const std::string& line) = 0;
    // The line that stands last, tails aside; empty in the beginning.
    const std::string& last() const { return last_; }

protected:
    std::string last_;
};

// In memory, which it does not fill: of more than `most` lines the older half goes.
class RecordText : public RecordLines {
public:
    static constexpr std::size_t most = 20'000;

    void line(const std::string& line) override;
    void tail(const std::string& line) override { tail_ = line; }
    void changeLast(const std::string& line) override;
    std::string text() const;
    void clear();
    std::size_t lines() const { return lines_.size(); }
    // Lines have gone.
    bool cut() const { return cut_; }

private:
    std::vector<std::string> lines_;
    bool cut_ = false;
    std::string tail_;
};

// Each line is in the file as soon as it is told: what is played just before a crash is what a report needs most.
// So it is appended to in place, and not made anew beside itself and renamed, which would lose it all with the
// process.
class RecordFile : public RecordLines {
public:
    // Begins the file anew, or goes on behind what it holds. Throws `std::system_error`.
    RecordFile(const std::filesystem::path& path, bool goOn);

    void line(const std::string& line) override { put(line, false); }
    void tail(const std::string& line) override { put(line, true); }
    void changeLast(const std::string& line) override;

private:
    void put(const std::string& line, bool tail);
    void write(const std::string& line);

    std::filesystem::path path_;
    std::fstream file_;
    std::uintmax_t end_ = 0;   // of what stays
    std::uintmax_t size_ = 0;  // with the tail
    std::uintmax_t lastAt_ = 0;
    bool failed_ = false;
};

}  // namespace zentrox::author
