// What the fuzz targets of readers of files share: a file that holds the bytes.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "platform/machine/files.h"

namespace zentrox::fuzz {

class File {
public:
    explicit File(const char* name) : name_(name) { std::filesystem::create_directory(directory_); }
    ~File() {
        std::error_code ignored;
        std::filesystem::remove_all(directory_, ignored);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    void hold(const std::uint8_t* data, std::size_t size) const {
        std::FILE* const out = std::fopen(path().c_str(), "wb");
        if (out == nullptr || std::fwrite(data, 1, size, out) != size || std::fclose(out) != 0) std::abort();
    }
    std::filesystem::path path() const { return directory_ / name_; }
    // As the game finds it.
    Files files() const { return Files(directory_); }
    const char* name() const { return name_; }

private:
    const char* name_;
    std::filesystem::path directory_ = "/dev/shm/zentrox-fuzz-" + std::to_string(getpid());
};

}  // namespace zentrox::fuzz
