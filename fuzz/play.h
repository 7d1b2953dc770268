// What the fuzz targets of the whole program share: a story on a disk in memory, of which files can be damaged, and
// a person who knows no aim. What they do is read from the bytes of the fuzzer, so that it can learn.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/state/zustand.h"

namespace zentrox::fuzz {

// Bytes that end never: zeroes follow them.
class Course {
public:
    Course(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}
    bool over() const { return at_ == end_; }
    std::uint32_t byte() { return at_ == end_ ? 0U : *at_++; }
    std::uint32_t pair() {
        const std::uint32_t first = byte();
        return first << 8U | byte();
    }
    // From 0 up to but excluding n; n from 1 to 65,536.
    std::size_t below(std::size_t n) { return (n > 256 ? pair() : byte()) % n; }
    std::string bytes(std::size_t count);

private:
    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

// A copy of the demo's data.
class Stage {
public:
    Stage();
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    const std::filesystem::path& directory() const { return directory_; }
    // Relative to the directory; first rooms and scripts, of which there are so many.
    const std::vector<std::string>& files() const { return files_; }
    std::size_t written() const { return written_; }

    std::string whole(const std::string& file) const;
    void replace(const std::string& file, const std::string& bytes);
    void remove(const std::string& file);
    // As it was, without saved games.
    void restore();

private:
    void lay(const std::string& file) const;

    std::filesystem::path directory_;
    std::vector<std::string> files_;
    std::size_t written_ = 0;
    std::vector<std::string> changed_;
};

// Plays the story, from a room of that name or the menu where it is empty, until the course is over, the program
// has ended, or it has done all that it may. Throws nothing: whatever the program lets escape ends the process.
void play(const Stage& stage, const Text& room, std::uint64_t seed, Course& course);

}  // namespace zentrox::fuzz
