// Pictures for tests of Jump: coloured noise, so that a pixel from a wrong place is seen.
#pragma once

#include "games/jump/level.h"
#include "platform/values/random.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {

// What a pixel of a figure is: part of it or not.
inline bool inFigure(Random& chance) {
    return chance.below(3) != 0;
}

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

inline void writeNoise(const TempDirectory& directory, const std::string& name, int width, int height,
                       std::uint64_t seed) {
    Random chance(seed);
    directory.write("games/" + name + ".bmp",
                    bitmapFile(width, height, [&] { return static_cast<std::uint32_t>(chance.below(1 << 24)); }));
}

// A sprite and its mask.
inline void writeFigure(const TempDirectory& directory, const std::string& sprite, const std::string& mask,
                        int width, int height, std::uint64_t seed) {
    Random shape(seed);
    Random same(seed);
    Random colour(seed + 1);
    directory.write("games/" + sprite + ".bmp", bitmapFile(width, height, [&] {
                        const auto any = static_cast<std::uint32_t>(colour.below(1 << 24));
                        return inFigure(shape) ? any : 0U;
                    }));
    directory.write("games/" + mask + ".bmp",
                    bitmapFile(width, height, [&] { return inFigure(same) ? 0U : 0xFFFFFFU; }));
}

// All 52 of them, into the folder "games".
inline void writeJumpPictures(const TempDirectory& directory) {
    std::uint64_t seed = 100;
    writeNoise(directory, "j0", 640, 432, ++seed);
    for (int i = 1; i <= 11; ++i) writeNoise(directory, "j" + std::to_string(i), 48, 48, ++seed);
    for (int i = 1; i <= 4; ++i) {
        const std::string stem = "h" + std::to_string(i);
        writeFigure(directory, stem, stem + "m", 48, 96, seed += 10);
    }
    for (int type = 0; type < 4; ++type)
        for (int frame = 1; frame <= 2; ++frame) {
            const GegnerTyp& t = GegnerTypen[static_cast<std::size_t>(type)];
            const std::string stem = "g" + std::to_string(type + 1) + std::to_string(frame);
            writeFigure(directory, stem, stem + "m", t.Breite, t.Hoehe, seed += 10);
            writeFigure(directory, stem + "d", stem + "md", t.Breite, t.Hoehe, seed += 10);
        }
}

}  // namespace zentrox::test
