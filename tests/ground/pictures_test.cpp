#include "platform/codec/pictures.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include "platform/values/error.h"
#include "tests/ground/bytes.h"
#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

// A JPEG of 16 by 12 pixels that goes from red at the top to blue at the bottom.
constexpr std::string_view jpegInHex =
    "ffd8ffe000104a46494600010100000100010000ffdb0043000d090a0b0a080d0b0a0b0e0e0d0f13201513121213271c1e17"
    "202e2931302e292d2c333a4a3e333646372c2d405741464c4e525352323e5a615a50604a51524fffdb0043010e0e0e131113"
    "261515264f352d354f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f4f"
    "4f4f4f4f4f4f4f4fffc0001108000c001003012200021101031101ffc4001600010101000000000000000000000000000005"
    "06ffc400191000010500000000000000000000000000000212145161ffc40015010101000000000000000000000000000005"
    "06ffc40017110003010000000000000000000000000000031516ffda000c03010002110311003f00cb48d12349af5587aaca"
    "3cfa856db0ffd9";

std::string fromHex(std::string_view hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
    return bytes;
}

// A bitmap file whose pixel at x, y has the colour 40x, 50y, 7, or in the shallow ones index (x + y) of a palette.
std::string bitmapFile(int width, int height, int bits) {
    const int colours = bits <= 8 ? 1 << bits : 0;
    const int rowBytes = (width * bits + 31) / 32 * 4;
    const int offset = 54 + colours * 4;
    test::Bytes file("BM");
    file.u32(offset + rowBytes * height).u32(0).u32(offset);
    file.u32(40).u32(width).u32(height).u16(1).u16(bits).u32(0).u32(0).u32(0).u32(0).u32(colours).u32(0);
    for (int i = 0; i < colours; ++i) file.u32(i * 0x010203);
    for (int y = height - 1; y >= 0; --y) {
        test::Bits row;
        for (int x = 0; x < width; ++x)
            bits <= 8 ? row.add(static_cast<unsigned>(x + y), bits) : row.addColour(40 * x, 50 * y, 7, bits);
        file.text(row.padded());
    }
    return file.bytes();
}

class Pictures : public ::testing::Test {
protected:
    test::TempDirectory temp;
    Files files{temp.path()};

    Bitmap load(std::string_view bytes) {
        temp.write("bilder/Flur.jpg", bytes);
        return loadPicture(files, "Bilder\\flur.JPG");
    }
    // The message, or nothing if the picture could be read.
    Text failure(std::string_view bytes) {
        try {
            load(bytes);
        } catch (const DataError& error) {
            return error.message();
        }
        return {};
    }
    std::string pngFile() {
        Bitmap bitmap({9, 7}, Colour(1, 2, 3));
        bitmap.setPixel({8, 6}, Colour(200, 100, 50));
        EXPECT_TRUE(savePng(bitmap, (temp.path() / "p.png").string()));
        return files.read("p.png");
    }
};

TEST_F(Pictures, AreToldByTheirContent) {
    const Bitmap jpeg = load(fromHex(jpegInHex));
    EXPECT_EQ(jpeg.size(), (Size{16, 12}));
    EXPECT_NEAR(jpeg.pixel({8, 0}) >> 16, 245, 25);
    EXPECT_NEAR(jpeg.pixel({8, 11}) & 255, 245, 25);

    const Bitmap png = load(pngFile());
    EXPECT_EQ(png.size(), (Size{9, 7}));
    EXPECT_EQ(png.pixel({0, 0}), 0x010203);
    EXPECT_EQ(png.pixel({8, 6}), 0xC86432);
}

TEST_F(Pictures, BitmapsOfEveryDepth) {
    for (const int bits : {1, 4, 8}) {
        const Bitmap bitmap = load(bitmapFile(5, 3, bits));
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 5; ++x) EXPECT_EQ(bitmap.pixel({x, y}), ((x + y) & ((1 << bits) - 1)) * 0x010203);
    }
    for (const int bits : {24, 32}) {
        const Bitmap bitmap = load(bitmapFile(5, 3, bits));
        EXPECT_EQ(bitmap.size(), (Size{5, 3}));
        EXPECT_EQ(bitmap.pixel({4, 2}), 160 << 16 | 100 << 8 | 7);
        EXPECT_EQ(bitmap.pixel({0, 1}), 50 << 8 | 7);
    }
}

TEST_F(Pictures, FailuresNameTheFile) {
    EXPECT_EQ(failure(""), "Das Bild \"bilder\\Flur.jpg\" ist beschädigt."_t);
    EXPECT_EQ(failure("GIF89a and what follows"), failure(""));
    try {
        loadPicture(files, "Bilder\\Keller.bmp");
        FAIL();
    } catch (const DataError& error) {
        EXPECT_EQ(error.message(), "Die Datei \"bilder\\Keller.bmp\" fehlt.");
    }
}

TEST_F(Pictures, CutAnywhereFail) {
    for (const std::string& whole : {fromHex(jpegInHex), bitmapFile(8, 6, 24), pngFile()}) {
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_NE(failure(whole.substr(0, length)), "") << length << " bytes of " << whole.substr(0, 4);
        EXPECT_EQ(failure(whole + "and more"), "");
    }
}

TEST_F(Pictures, ClaimsOfSizeAreNotBelieved) {
    std::string bitmap = bitmapFile(4, 4, 24);
    for (const std::uint32_t side : {16'000U, 65'535U, 0x7FFFFFFFU, 0xFFFFFFFFU, 0x80000000U, 0U}) {
        std::string wide = bitmap;
        test::overwrite(wide, 18, side);
        EXPECT_NE(failure(wide), "") << side;
        std::string high = bitmap;
        test::overwrite(high, 22, side == 0xFFFFFFFFU ? 5U : side);  // -1 is one row from the top down
        EXPECT_NE(failure(high), "") << side;
    }
    std::string jpeg = fromHex(jpegInHex);
    const std::size_t frame = jpeg.find("\xFF\xC0");
    jpeg[frame + 5] = jpeg[frame + 7] = '\x3F';
    EXPECT_NE(failure(jpeg), "");
    std::string png = pngFile();
    png[17] = png[21] = '\x7F';
    EXPECT_NE(failure(png), "");
}

// A small file can ask for hours by going over a large picture again and again.
TEST_F(Pictures, AJpegOfManyScansIsRefusedUnseen) {
    const std::string whole = fromHex(jpegInHex);
    const std::size_t scan = whole.find("\xFF\xDA");
    std::string bytes = whole.substr(0, scan);
    const std::size_t frame = bytes.find("\xFF\xC0");
    for (const std::size_t side : {5, 7}) bytes.replace(frame + side, 2, "\x13\x88");  // 5000 by 5000 pixels
    const std::string pass = whole.substr(scan, whole.size() - scan - 2);
    while (bytes.size() < 40'000) bytes += pass;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_NE(failure(bytes + "\xFF\xD9"), "");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

TEST_F(Pictures, CantBeSavedWhereThereIsNoPlace) {
    EXPECT_FALSE(savePng(Bitmap({2, 2}), (temp.path() / "missing" / "p.png").string()));
    EXPECT_FALSE(savePng(Bitmap(), (temp.path() / "empty.png").string()));
}

}  // namespace
}  // namespace zentrox
