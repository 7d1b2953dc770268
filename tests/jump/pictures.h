// Pictures for tests of Jump: coloured noise, so that a pixel from a wrong place is seen.
#pragma once

#include "games/jump/level.h"
#include "platform/values/random.h"
#include "tests/support/bitmap_file.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {

// What a pixel of a figure is: part of it or not.
inline bool inFigure(Random& chance) {
    return chance.below(3) != 0;
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
