// Archives made for a test, also such as nobody means well with.
#pragma once

#include <gtest/gtest.h>
#include <zip.h>

#include <string>
#include <string_view>
#include <utility>

#include "tests/support/temp_directory.h"

namespace zentrox::test {

class ZipWriter {
public:
    explicit ZipWriter(std::filesystem::path path) : path_(std::move(path)) {
        int error = 0;
        archive_ = zip_open(path_.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    }
    ~ZipWriter() { close(); }
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    // The bytes have to live until the archive is closed.
    ZipWriter& add(const char* name, std::string_view bytes, zip_int32_t method = ZIP_CM_DEFLATE) {
        zip_source_t* const source = zip_source_buffer(archive_, bytes.data(), bytes.size(), 0);
        last_ = static_cast<zip_uint64_t>(zip_file_add(archive_, name, source, ZIP_FL_ENC_UTF_8));
        zip_set_file_compression(archive_, last_, method, 0);
        return *this;
    }
    // The kind of file that the entry added last claims to be, as Unix writes it.
    ZipWriter& mode(unsigned mode) {
        zip_file_set_external_attributes(archive_, last_, 0, ZIP_OPSYS_UNIX, mode << 16U);
        return *this;
    }
    ZipWriter& encrypted() {
        zip_file_set_encryption(archive_, last_, ZIP_EM_AES_256, "secret");
        return *this;
    }
    std::filesystem::path close() {
        if (zip_t* const open = std::exchange(archive_, nullptr)) {
            EXPECT_EQ(zip_close(open), 0);
        }
        return path_;
    }

private:
    std::filesystem::path path_;
    zip_t* archive_;
    zip_uint64_t last_ = 0;
};

}  // namespace zentrox::test
