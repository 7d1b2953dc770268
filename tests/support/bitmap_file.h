// Bitmap files for tests.
#pragma once

#include <cstdint>
#include <string>

namespace zentrox::test {

inline void littleEndian(std::string& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> (8 * i) & 0xFFU);
}

// A bitmap file of 24 bits a pixel; `pixel` gives 0xRRGGBB, asked row by row from the bottom.
template <typename Pixel>
std::string bitmapFile(int width, int height, const Pixel& pixel) {
    const int pad = (4 - 3 * width % 4) % 4;
    const auto bytes = static_cast<std::uint32_t>((3 * width + pad) * height);
    std::string out = "BM";
    littleEndian(out, 54 + bytes, 4);
    littleEndian(out, 0, 4);
    littleEndian(out, 54, 4);
    littleEndian(out, 40, 4);
    littleEndian(out, static_cast<std::uint32_t>(width), 4);
    littleEndian(out, static_cast<std::uint32_t>(height), 4);
    littleEndian(out, 1, 2);
    littleEndian(out, 24, 2);
    littleEndian(out, 0, 4);
    littleEndian(out, bytes, 4);
    for (int i = 0; i < 4; ++i) littleEndian(out, 0, 4);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) littleEndian(out, pixel(), 3);
        out.append(static_cast<std::size_t>(pad), '\0');
    }
    return out;
}

inline std::string plainBitmapFile(int width, int height, std::uint32_t rgb) {
    return bitmapFile(width, height, [rgb] { return rgb; });
}

}  // namespace zentrox::test
