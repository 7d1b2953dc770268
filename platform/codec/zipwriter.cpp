#include "platform/codec/zipwriter.h"

#include <sys/stat.h>
#include <zip.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <memory>
#include <system_error>

#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "platform/values/text.h"

namespace zentrox {

namespace {

constexpr std::array pressed{".jpg", ".jpeg", ".png", ".mp3",  ".ogg", ".mp4", ".mpg", ".mpeg",
                             ".avi", ".mkv",  ".wmv", ".webm", ".sf3", ".gz",  ".zip", ".zentrox"};

struct Closer {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, Closer>;

[[noreturn]] void fail(const std::filesystem::path& file, std::errc code) {
    throw std::filesystem::filesystem_error("zip", file, std::make_error_code(code));
}

bool isPressed(const PackedFile& file) {
    const std::string extension = lower(std::filesystem::path(file.name).extension().string());
    return file.name == "mimetype" || std::find(pressed.begin(), pressed.end(), extension) != pressed.end();
}

// The format's own date, which has no zone and begins with 1980.
struct DosDate {
    zip_uint16_t time = 0;
    zip_uint16_t day = (1U << 5U) | 1U;

    explicit DosDate(std::int64_t seconds) {
        const auto whole = static_cast<std::time_t>(seconds);
        std::tm parts{};
        if (gmtime_r(&whole, &parts) == nullptr || parts.tm_year < 80 || parts.tm_year > 207) return;
        time = static_cast<zip_uint16_t>(parts.tm_hour << 11 | parts.tm_min << 5 | parts.tm_sec / 2);
        day = static_cast<zip_uint16_t>((parts.tm_year - 80) << 9 | (parts.tm_mon + 1) << 5 | parts.tm_mday);
    }
};

void add(zip_t* archive, const PackedFile& file, const std::string& bytes, const DosDate& date) {
    zip_source_t* const source = zip_source_buffer(archive, bytes.data(), bytes.size(), 0);
    const zip_int64_t index = zip_file_add(archive, file.name.c_str(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        fail(file.name, std::errc::invalid_argument);
    }
    const auto at = static_cast<zip_uint64_t>(index);
    constexpr unsigned level = 9;
    zip_set_file_compression(archive, at, isPressed(file) ? ZIP_CM_STORE : ZIP_CM_DEFLATE, level);
    zip_file_set_dostime(archive, at, date.time, date.day, 0);
    const unsigned mode = static_cast<unsigned>(S_IFREG) | (file.runs ? 0755U : 0644U);
    zip_file_set_external_attributes(archive, at, 0, ZIP_OPSYS_UNIX, mode << 16U);
}

std::string bytesOf(zip_source_t* source) {
    std::string bytes;
    if (zip_source_open(source) != 0) return bytes;
    zip_stat_t about;
    zip_stat_init(&about);
    if (zip_source_stat(source, &about) == 0) bytes.resize(about.size);
    const auto got = zip_source_read(source, bytes.data(), bytes.size());
    zip_source_close(source);
    if (got != static_cast<zip_int64_t>(bytes.size())) bytes.clear();
    return bytes;
}

}  // namespace

void writeZip(const std::filesystem::path& target, const std::vector<PackedFile>& files, std::int64_t date) {
    // The archive points at these until it is closed.
    std::vector<std::string> contents;
    contents.reserve(files.size());
    for (const PackedFile& file : files) {
        auto bytes = file.file.empty() ? file.bytes : readFile(file.file);
        if (!bytes) fail(file.file, std::errc::io_error);
        contents.push_back(*std::move(bytes));
    }
    const Source whole(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    if (!whole) fail(target, std::errc::not_enough_memory);
    zip_source_keep(whole.get());
    zip_t* const archive = zip_open_from_source(whole.get(), ZIP_TRUNCATE, nullptr);
    if (archive == nullptr) fail(target, std::errc::not_enough_memory);
    try {
        for (std::size_t i = 0; i < files.size(); ++i) add(archive, files[i], contents[i], DosDate(date));
    } catch (const std::system_error&) {
        zip_discard(archive);
        throw;
    }
    const bool closed = zip_close(archive) == 0;
    if (!closed) zip_discard(archive);
    const std::string bytes = closed ? bytesOf(whole.get()) : "";
    if (bytes.empty()) fail(target, std::errc::io_error);
    try {
        replaceFile(target, bytes);
    } catch (const std::system_error& error) {
        throw std::filesystem::filesystem_error("replace", target, error.code());
    }
}

}  // namespace zentrox
