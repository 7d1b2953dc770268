#include <gtest/gtest.h>

#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "tests/ground/bytes.h"
#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

constexpr std::uint32_t clear = 0;
constexpr std::uint32_t full = 0xFF000000;

// What a pixel of the made icons is: columns of three kinds, each with its colour by row.
bool maskedColumn(int x) {
    return x % 3 == 1;
}

struct Made {
    int side = 32;
    int bits = 4;
    bool mask = true;
    int opacity = 0;  // the fourth byte of the pixels of 32 bits
};

// The bitmap in an icon: masked columns are black, the others have palette entry 1 or the colour 10, 20, 30.
std::string imageOf(const Made& made) {
    const int colours = made.bits <= 8 ? 1 << made.bits : 0;
    test::Bytes image;
    image.u32(40).u32(made.side).u32(made.side * 2).u16(1).u16(made.bits).u32(0).u32(0).u32(0).u32(0).u32(0).u32(0);
    for (int i = 0; i < colours; ++i) image.u32(i == 1 ? 0x0A141E : i == 0 ? 0 : 0x7F7F7F);
    for (int y = made.side - 1; y >= 0; --y) {
        test::Bits row;
        for (int x = 0; x < made.side; ++x) {
            const bool shown = !maskedColumn(x) && y > 0;  // the top row is black throughout
            if (made.bits <= 8)
                row.add(shown ? 1 : 0, made.bits);
            else
                row.addColour(shown ? 10 : 0, shown ? 20 : 0, shown ? 30 : 0, made.bits,
                              maskedColumn(x) ? 0 : made.opacity);
        }
        image.text(row.padded());
    }
    for (int y = 0; made.mask && y < made.side; ++y) {
        test::Bits row;
        for (int x = 0; x < made.side; ++x) row.add(maskedColumn(x) ? 1 : 0, 1);
        image.text(row.padded());
    }
    return image.bytes();
}

std::string iconFile(const std::vector<std::string>& images) {
    test::Bytes file;
    file.u16(0).u16(1).u16(static_cast<int>(images.size()));
    std::size_t place = 6 + 16 * images.size();
    for (const std::string& image : images) {
        file.u32(0).u32(0).u32(static_cast<std::int64_t>(image.size())).u32(static_cast<std::int64_t>(place));
        place += image.size();
    }
    for (const std::string& image : images) file.text(image);
    return file.bytes();
}

class Icons : public ::testing::Test {
protected:
    test::TempDirectory temp;
    Files files{temp.path()};

    Icon load(const std::string& bytes, int side = 32) {
        temp.write("cursors/hand.ico", bytes);
        return loadIcon(files, "cursors\\HAND.ico", side);
    }
    bool fails(const std::string& bytes) {
        try {
            load(bytes);
        } catch (const DataError& error) {
            EXPECT_EQ(error.message(), "Das Bild \"cursors\\hand.ico\" ist beschädigt."_t);
            return true;
        }
        return false;
    }
    static std::uint32_t at(const Icon& icon, int x, int y) {
        return icon.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(icon.size.w) +
                           static_cast<std::size_t>(x)];
    }
};

TEST_F(Icons, OfEveryDepthHaveTheirMask) {
    for (const int bits : {1, 4, 8, 24, 32}) {
        for (const int side : {32, 13}) {
            const Icon icon = load(iconFile({imageOf({side, bits})}));
            EXPECT_EQ(icon.size, (Size{side, side}));
            EXPECT_EQ(icon.file, "cursors\\HAND.ico");
            ASSERT_EQ(icon.pixels.size(), static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x)
                    ASSERT_EQ(at(icon, x, y), maskedColumn(x) ? clear
                                              : y == 0        ? full
                                                              : full | 0x0A141E)
                        << bits << " bits, " << x << ", " << y;
        }
    }
}

TEST_F(Icons, OfThirtyTwoBitsMayHaveOpacityOfTheirOwn) {
    for (const bool mask : {true, false}) {
        const Icon icon = load(iconFile({imageOf({16, 32, mask, 0x80})}));
        EXPECT_EQ(at(icon, 0, 1), 0x800A141E);
        EXPECT_EQ(at(icon, 1, 1), 0U);
    }
}

TEST_F(Icons, MayHoldPng) {
    Bitmap picture({48, 48}, Colour(9, 8, 7));
    ASSERT_TRUE(savePng(picture, (temp.path() / "p.png").string()));
    const Icon icon = load(iconFile({imageOf({16, 4}), files.read("p.png")}), 48);
    EXPECT_EQ(icon.size, (Size{48, 48}));
    EXPECT_EQ(at(icon, 47, 47), 0xFF090807);
}

TEST_F(Icons, OfSeveralPicturesTheNearestAndDeepestIsTaken) {
    const std::string file =
        iconFile({imageOf({16, 24}), imageOf({32, 1}), imageOf({32, 8}), imageOf({32, 4}), imageOf({64, 32})});
    EXPECT_EQ(load(file, 20).size, (Size{16, 16}));
    EXPECT_EQ(load(file, 100).size, (Size{64, 64}));
    EXPECT_EQ(load(file, 32).size, (Size{32, 32}));
    // Of the pictures of one size that of 8 bits wins: cut short, it alone makes the file fail.
    std::string deep = imageOf({32, 8});
    deep.resize(deep.size() - 1);
    EXPECT_TRUE(fails(iconFile({imageOf({32, 4}), deep, imageOf({32, 1})})));
    EXPECT_FALSE(fails(iconFile({imageOf({32, 4}), imageOf({32, 1}), "no picture"})));
}

TEST_F(Icons, PixelsThatTurnTheGroundOverAreSeen) {
    std::string image = imageOf({16, 24});
    image[40 + 3] = '\xFF';  // the second pixel of the lowest row is masked
    EXPECT_EQ(at(load(iconFile({image})), 1, 15), 0xFF808080);
}

TEST_F(Icons, DamagedOnesFail) {
    for (const Made& made : {Made{32, 4}, Made{16, 1}, Made{8, 24}}) {
        const std::string whole = iconFile({imageOf(made)});
        for (std::size_t length = 0; length < whole.size(); length += length < 80 ? 1 : 7)
            EXPECT_TRUE(fails(whole.substr(0, length))) << length;
    }
    EXPECT_TRUE(fails(iconFile({})));
    EXPECT_TRUE(fails(iconFile({imageOf({16, 7})})));
    std::string bytes = iconFile({imageOf({16, 4})});
    test::overwrite(bytes, 6 + 12, 0xFFFFFFF0);  // the place of the picture
    EXPECT_TRUE(fails(bytes));
    EXPECT_THROW(loadIcon(files, "cursors\\fehlt.ico"), DataError);
}

}  // namespace
}  // namespace zentrox
