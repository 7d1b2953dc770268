#include "tools/story/imagefiles.h"

#include "platform/values/bytes.h"

namespace zentrox::story {

namespace {

constexpr std::uint32_t fileHeaderSize = 14;
constexpr std::uint32_t infoHeaderSize = 40;
constexpr std::uint32_t iconHeaderSize = 6 + 16;
constexpr std::uint32_t opaque = 0xFF000000U;

class Bytes {
public:
    void u16(unsigned value) { little(value, 2); }
    void u32(std::uint32_t value) { little(value, 4); }
    void little(std::uint32_t value, int count) { out += zentrox::little(value, count); }
    // A row of a bitmap is a multiple of four bytes.
    void pad() {
        while (out.size() % 4 != start % 4) out += '\0';
    }

    std::string out;
    std::size_t start = 0;  // of the rows
};

void infoHeader(Bytes& bytes, int width, int height, unsigned bits) {
    bytes.u32(infoHeaderSize);
    bytes.u32(static_cast<std::uint32_t>(width));
    bytes.u32(static_cast<std::uint32_t>(height));
    bytes.u16(1);
    bytes.u16(bits);
    for (int i = 0; i < 6; ++i) bytes.u32(0);
}

}  // namespace

std::string bmpFile(const Bitmap& picture) {
    Bytes rows;
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); ++x) rows.little(picture.row(y)[x] & 0xFFFFFFU, 3);
        rows.pad();
    }
    Bytes bytes;
    bytes.out = "BM";
    bytes.u32(fileHeaderSize + infoHeaderSize + static_cast<std::uint32_t>(rows.out.size()));
    bytes.u32(0);
    bytes.u32(fileHeaderSize + infoHeaderSize);
    infoHeader(bytes, picture.width(), picture.height(), 24);
    return bytes.out + rows.out;
}

std::string iconFile(const Bitmap& picture, Colour clear) {
    Bytes image;
    infoHeader(image, picture.width(), picture.height() * 2, 32);  // the height of picture and mask
    for (int y = picture.height() - 1; y >= 0; --y)
        for (int x = 0; x < picture.width(); ++x) {
            const std::uint32_t pixel = picture.row(y)[x];
            image.u32(pixel == clear.rgb ? 0 : pixel | opaque);
        }
    image.start = image.out.size();
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); x += 8) {
            unsigned bits = 0;
            for (int i = 0; i < 8; ++i) {
                const bool shows = x + i < picture.width() && picture.row(y)[x + i] != clear.rgb;
                bits = bits << 1U | (shows ? 0U : 1U);
            }
            image.little(bits, 1);
        }
        image.pad();
    }
    Bytes bytes;
    bytes.u16(0);
    bytes.u16(1);
    bytes.u16(1);
    bytes.little(static_cast<std::uint32_t>(picture.width()), 1);
    bytes.little(static_cast<std::uint32_t>(picture.height()), 1);
    bytes.u16(0);
    bytes.u16(1);
    bytes.u16(32);
    bytes.u32(static_cast<std::uint32_t>(image.out.size()));
    bytes.u32(iconHeaderSize);
    return bytes.out + image.out;
}

}  // namespace zentrox::story
