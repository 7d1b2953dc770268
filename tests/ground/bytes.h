// Files written byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/values/bytes.h"

namespace zentrox::test {

// Little-endian numbers one behind the other.
class Bytes {
public:
    explicit Bytes(std::string_view begin = {}) : bytes_(begin) {}
    Bytes& u8(std::int64_t value) { return number(value, 1); }
    Bytes& u16(std::int64_t value) { return number(value, 2); }
    Bytes& u32(std::int64_t value) { return number(value, 4); }
    Bytes& text(std::string_view more) {
        bytes_ += more;
        return *this;
    }
    const std::string& bytes() const { return bytes_; }
    std::size_t size() const { return bytes_.size(); }

private:
    Bytes& number(std::int64_t value, int bytes) {
        bytes_ += little(static_cast<std::uint32_t>(value), bytes);
        return *this;
    }

    std::string bytes_;
};

// A row of pixels of so many bits each, the first in the highest bits of its byte.
class Bits {
public:
    void add(unsigned value, int bits) {
        for (int i = bits - 1; i >= 0; --i) {
            if (used_ % 8 == 0) bytes_ += '\0';
            if ((value >> static_cast<unsigned>(i) & 1U) != 0)
                bytes_.back() = static_cast<char>(static_cast<unsigned char>(bytes_.back()) | 0x80U >> used_ % 8);
            ++used_;
        }
    }
    void addColour(int red, int green, int blue, int bits, int fourth = 0) {
        for (const int part : {blue, green, red}) add(static_cast<unsigned>(part), 8);
        if (bits == 32) add(static_cast<unsigned>(fourth), 8);
    }
    // Filled up to a multiple of four bytes.
    std::string padded() const {
        std::string row = bytes_;
        row.resize((row.size() + 3) / 4 * 4);
        return row;
    }

private:
    std::string bytes_;
    unsigned used_ = 0;
};

inline void overwrite(std::string& bytes, std::size_t at, std::uint32_t value) {
    bytes.replace(at, 4, Bytes().u32(value).bytes());
}

}  // namespace zentrox::test
