// The files of the page, each under a name made of its content, so that none is ever out of date.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace zentrox::web {

// 16 hexadecimal digits.
std::string nameFor(std::string_view content);

std::string readAll(const std::filesystem::path& file);

// As gzip does; the same bytes give the same result.
std::string packed(const std::string& bytes);

struct Stored {
    std::string url;          // relative to the page
    std::uint64_t bytes = 0;  // to be transferred
    bool packed = false;      // the page unpacks it
};

class Store {
public:
    explicit Store(const std::filesystem::path& into) : into_(into) {}

    // Keeps the bytes, packed where that pays; `folder` is a directory of the page.
    Stored keep(const std::string& folder, const std::string& bytes) const;
    // Where a file made of others lies, whose name tells what it was made of; it need not be there yet.
    std::filesystem::path place(const std::string& url) const { return into_ / url; }

private:
    std::filesystem::path into_;
};

}  // namespace zentrox::web
