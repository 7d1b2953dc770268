// Icon files: a directory of pictures, each a small bitmap with a mask or a PNG.
#include <cstdlib>
#include <optional>

#include "platform/codec/decode.h"
#include "platform/codec/pictures.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

constexpr std::size_t directoryHead = 6;
constexpr std::size_t directoryEntry = 16;
constexpr std::uint32_t bitmapHeader = 40;

constexpr std::uint32_t opaque = 0xFF000000;
// A pixel that is to turn over what lies under it: grey is seen on dark and on light ground alike.
constexpr std::uint32_t turnedOver = 0xFF808080;

// One picture of the file, as far as its head tells.
struct Head {
    FileBytes data{{}};
    bool png = false;
    Size size;
    int depth = 0;
};

std::optional<Head> headOf(const FileBytes& data) {
    Head head{data, data.startsWith("\x89PNG"), {}, 32};
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    if (head.png) {
        if (!data.has(16, 8)) return std::nullopt;
        width = data.bigU32(16);
        height = data.bigU32(20);
    } else {
        if (!data.has(0, bitmapHeader) || data.u32(0) < bitmapHeader || data.u32(16) != 0) return std::nullopt;
        width = data.u32(4);
        height = data.u32(8) / 2;  // the mask counts as well
        head.depth = static_cast<int>(data.u16(14));
    }
    if (width == 0 || height == 0 || width > limits::iconSide || height > limits::iconSide) return std::nullopt;
    head.size = {static_cast<int>(width), static_cast<int>(height)};
    return head;
}

std::vector<Head> headsOf(const FileBytes& file) {
    std::vector<Head> heads;
    if (!file.has(0, directoryHead) || file.u16(0) != 0 || file.u16(2) == 0 || file.u16(2) > 2) return heads;
    const std::size_t count = file.u16(4);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = directoryHead + i * directoryEntry;
        if (!file.has(entry, directoryEntry)) break;
        const std::size_t length = file.u32(entry + 8);
        const std::size_t place = file.u32(entry + 12);
        if (!file.has(place, length)) continue;
        if (const auto head = headOf(FileBytes(file.from(place).substr(0, length)))) heads.push_back(*head);
    }
    return heads;
}

const Head* bestOf(const std::vector<Head>& heads, int side) {
    const Head* best = nullptr;
    for (const Head& head : heads) {
        const int off = std::abs(head.size.w - side);
        const int bestOff = best != nullptr ? std::abs(best->size.w - side) : 0;
        if (best == nullptr || off < bestOff || (off == bestOff && head.depth > best->depth)) best = &head;
    }
    return best;
}

// --- a bitmap with a mask

// Where the parts of an icon's bitmap lie. Rows go from the bottom up and fill whole words of 32 bits.
struct Layout {
    std::size_t palette = 0;
    std::size_t colours = 0;
    std::size_t pixels = 0;
    std::size_t pixelRow = 0;
    std::size_t mask = 0;
    std::size_t maskRow = 0;
};

std::size_t rowBytes(int width, int depth) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(depth) + 31) / 32 * 4;
}

std::optional<Layout> layoutOf(const Head& head) {
    const auto height = static_cast<std::size_t>(head.size.h);
    Layout layout;
    layout.palette = head.data.u32(0);
    if (head.depth <= 8) {
        const std::size_t used = head.data.u32(32);
        const std::size_t most = std::size_t{1} << static_cast<unsigned>(head.depth);
        layout.colours = used == 0 || used > most ? most : used;
    }
    layout.pixels = layout.palette + layout.colours * 4;
    layout.pixelRow = rowBytes(head.size.w, head.depth);
    layout.mask = layout.pixels + layout.pixelRow * height;
    layout.maskRow = rowBytes(head.size.w, 1);
    if (!head.data.has(layout.pixels, layout.pixelRow * height)) return std::nullopt;
    // Pictures with an opacity of their own may lack the mask.
    const bool masked = head.data.has(layout.mask, layout.maskRow * height);
    if (!masked && head.depth != 32) return std::nullopt;
    if (!masked) layout.maskRow = 0;
    return layout;
}

std::uint32_t paletteColour(const Head& head, const Layout& layout, std::uint32_t index) {
    return index < layout.colours ? head.data.u32(layout.palette + index * 4) & 0xFFFFFFU : 0;
}

// The pixel as the file has it: a colour, with its opacity on top if it is one of 32 bits.
std::uint32_t pixelAt(const Head& head, const Layout& layout, std::size_t row, std::size_t x) {
    const FileBytes& data = head.data;
    const std::size_t at = layout.pixels + row * layout.pixelRow;
    switch (head.depth) {
        case 1: return paletteColour(head, layout, data.u8(at + x / 8) >> (7 - x % 8) & 1U);
        case 4: return paletteColour(head, layout, data.u8(at + x / 2) >> (x % 2 == 0 ? 4U : 0U) & 15U);
        case 8: return paletteColour(head, layout, data.u8(at + x));
        case 24: return data.u16(at + x * 3) | data.u8(at + x * 3 + 2) << 16U;
        default: return data.u32(at + x * 4);
    }
}

bool maskedAt(const Head& head, const Layout& layout, std::size_t row, std::size_t x) {
    if (layout.maskRow == 0) return false;
    return (head.data.u8(layout.mask + row * layout.maskRow + x / 8) >> (7 - x % 8) & 1U) != 0;
}

bool hasOpacity(const std::vector<std::uint32_t>& pixels) {
    for (const std::uint32_t pixel : pixels)
        if ((pixel & opaque) != 0) return true;
    return false;
}

bool readBitmap(Icon& icon, const Head& head) {
    const int depth = head.depth;
    if (depth != 1 && depth != 4 && depth != 8 && depth != 24 && depth != 32) return false;
    const auto layout = layoutOf(head);
    if (!layout) return false;
    const auto height = static_cast<std::size_t>(head.size.h);
    const auto width = static_cast<std::size_t>(head.size.w);
    for (std::size_t y = 0; y < height; ++y)
        for (std::size_t x = 0; x < width; ++x) icon.pixels.push_back(pixelAt(head, *layout, height - 1 - y, x));
    if (depth == 32 && hasOpacity(icon.pixels)) return true;
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            std::uint32_t& pixel = icon.pixels[y * width + x];
            const bool masked = maskedAt(head, *layout, height - 1 - y, x);
            pixel = !masked ? pixel | opaque : pixel == 0 ? 0 : turnedOver;
        }
    }
    return true;
}

bool readPng(Icon& icon, const Head& head) {
    bool right = false;
    const bool decoded = decodePicture(head.data.from(0), Opacity::kept, [&](Size size) {
        right = size == head.size;
        icon.pixels.resize(static_cast<std::size_t>(size.w) * static_cast<std::size_t>(size.h));
        return icon.pixels.data();
    });
    return decoded && right;
}

}  // namespace

Icon loadIcon(const Files& files, TextView path, int side) {
    const std::string bytes = files.read(path);
    const std::vector<Head> heads = headsOf(FileBytes(bytes));
    const Head* const best = bestOf(heads, side);
    if (best == nullptr) failDamaged(files, path);
    Icon icon{best->size, {}, Text(path)};
    if (!(best->png ? readPng(icon, *best) : readBitmap(icon, *best))) failDamaged(files, path);
    return icon;
}

}  // namespace zentrox
