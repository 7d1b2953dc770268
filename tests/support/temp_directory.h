// A directory that lives as long as its test.
#pragma once

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace zentrox::test {

class TempDirectory {
public:
    TempDirectory() {
        static std::atomic<int> count{0};
        path_ = std::filesystem::temp_directory_path() /
                ("zentrox-test-" + std::to_string(getpid()) + "-" + std::to_string(++count));
        std::filesystem::create_directories(path_);
    }
    ~TempDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempDirectory(const TempDirectory&) = delete;
    TempDirectory& operator=(const TempDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }
    // Writes a file; the directories on its way are made. `name` has forward slashes and is UTF-8.
    std::filesystem::path write(std::string_view name, std::string_view bytes) const {
        std::filesystem::path file = path_ / std::filesystem::path(name);
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return file;
    }

private:
    std::filesystem::path path_;
};

}  // namespace zentrox::test
