#include <SDL_image.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <system_error>

#include "platform/codec/decode.h"
#include "platform/codec/pictures.h"
#include "platform/machine/replace_file.h"
#include "platform/values/error.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

// A file may claim any size in a few bytes. `room` is how many pixels its bytes can hold.
bool plausible(std::uint32_t width, std::uint32_t height, std::uint64_t room) {
    if (width == 0 || height == 0 || width > limits::pictureSide || height > limits::pictureSide) return false;
    const std::uint64_t pixels = std::uint64_t{width} * height;
    return pixels <= limits::picturePixels && pixels <= room;
}

// --- bitmaps

constexpr std::size_t bitmapHead = 14;
constexpr std::uint32_t oldHeader = 12;  // with sides of 16 bits

bool plausibleBitmap(const FileBytes& file) {
    if (!file.has(bitmapHead, oldHeader)) return false;
    const bool old = file.u32(bitmapHead) == oldHeader;
    if (!old && !file.has(bitmapHead, 20)) return false;
    const std::uint32_t width = old ? file.u16(bitmapHead + 4) : file.u32(bitmapHead + 4);
    const auto signedHeight = static_cast<std::int32_t>(file.u32(bitmapHead + 8));
    const std::uint32_t height =
        old ? file.u16(bitmapHead + 6) : static_cast<std::uint32_t>(std::llabs(signedHeight));
    const std::uint32_t bits = file.u16(bitmapHead + (old ? 10 : 14));
    const std::uint32_t packing = old ? 0 : file.u32(bitmapHead + 16);
    const bool packed = packing == 1 || packing == 2;
    if (packed) return plausible(width, height, file.size() * limits::packedBitmapPixelsPerByte);
    return bits != 0 && plausible(width, height, file.size() * 8 / bits);
}

// --- PNG

constexpr std::string_view pngMagic = "\x89PNG\r\n\x1A\n";

constexpr std::size_t chunkHead = 8;  // length and name
constexpr std::size_t chunkSum = 4;

// Goes from chunk to chunk up to the one at the end: the decoder takes whatever lies in memory for what is cut off.
bool completePng(const FileBytes& file) {
    for (std::size_t at = pngMagic.size(); file.has(at, chunkHead);) {
        const std::size_t length = file.bigU32(at);
        if (!file.has(at + chunkHead, length + chunkSum)) return false;
        if (file.from(at + 4).starts_with("IEND")) return true;
        at += chunkHead + length + chunkSum;
    }
    return false;
}

bool plausiblePng(const FileBytes& file) {
    return file.has(16, 8) && plausible(file.bigU32(16), file.bigU32(20), file.size() * limits::pngPixelsPerByte);
}

// --- JPEG

constexpr std::string_view jpegMagic = "\xFF\xD8\xFF";

enum Marker : std::uint32_t { endOfImage = 0xD9, startOfScan = 0xDA };

bool isRestart(std::uint32_t marker) {
    return marker >= 0xD0 && marker <= 0xD7;
}

bool isFrame(std::uint32_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// The place of the marker that ends the run of packed pixels at `at`, the file's end if there is none.
std::size_t endOfScan(const FileBytes& file, std::size_t at) {
    for (; file.has(at, 2); ++at)
        if (file.u8(at) == 0xFF && file.u8(at + 1) != 0 && file.u8(at + 1) != 0xFF && !isRestart(file.u8(at + 1)))
            return at;
    return file.size();
}

// Goes from marker to marker up to the one at the end. The decoder would fill what is cut off with grey.
bool completeJpeg(const FileBytes& file) {
    std::uint64_t pixels = 0;
    std::uint64_t touched = 0;
    for (std::size_t at = 2; file.has(at, 2);) {
        const std::uint32_t marker = file.u8(at + 1);
        if (file.u8(at) != 0xFF) return false;
        if (marker == 0xFF) {  // a filling byte
            ++at;
            continue;
        }
        if (marker == endOfImage) return pixels > 0 && touched <= limits::jpegPixelsInScans;
        if (!file.has(at, 4)) return false;
        const std::size_t length = file.bigU16(at + 2);
        if (isFrame(marker)) {
            if (!file.has(at, 9)) return false;
            const std::uint32_t width = file.bigU16(at + 7);
            const std::uint32_t height = file.bigU16(at + 5);
            if (!plausible(width, height, file.size() * limits::jpegPixelsPerByte)) return false;
            pixels = std::uint64_t{width} * height;
        }
        at += 2 + length;
        if (marker != startOfScan) continue;
        touched += pixels;
        at = endOfScan(file, at);
    }
    return false;
}

const char* usableFormat(const FileBytes& file) {
    if (file.startsWith("BM")) return plausibleBitmap(file) ? "BMP" : nullptr;
    if (file.startsWith(pngMagic)) return plausiblePng(file) && completePng(file) ? "PNG" : nullptr;
    if (file.startsWith(jpegMagic)) return completeJpeg(file) ? "JPG" : nullptr;
    return nullptr;
}

// A surface of SDL's that has these pixels.
SurfaceHandle surfaceOn(std::uint32_t* pixels, Size size) {
    return SurfaceHandle(
        SDL_CreateRGBSurfaceWithFormatFrom(pixels, size.w, size.h, 32, size.w * 4, SDL_PIXELFORMAT_XRGB8888));
}

// A stream of SDL's that appends what is written to a text.
SDL_RWops* writerTo(std::string& bytes) {
    SDL_RWops* const stream = SDL_AllocRW();
    if (stream == nullptr) return nullptr;
    stream->type = SDL_RWOPS_UNKNOWN;
    stream->hidden.unknown.data1 = &bytes;
    stream->size = [](SDL_RWops*) -> Sint64 { return -1; };
    stream->seek = [](SDL_RWops*, Sint64, int) -> Sint64 { return -1; };
    stream->read = [](SDL_RWops*, void*, std::size_t, std::size_t) -> std::size_t { return 0; };
    stream->write = [](SDL_RWops* to, const void* data, std::size_t size, std::size_t count) {
        static_cast<std::string*>(to->hidden.unknown.data1)->append(static_cast<const char*>(data), size * count);
        return count;
    };
    stream->close = [](SDL_RWops* closed) {
        SDL_FreeRW(closed);
        return 0;
    };
    return stream;
}

}  // namespace

namespace {

SurfaceHandle surfaceOf(std::string_view bytes) {
    const char* const format = usableFormat(FileBytes(bytes));
    if (format == nullptr) return nullptr;
    SDL_RWops* const in = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
    return SurfaceHandle(IMG_LoadTyped_RW(in, 1, format));
}

bool copyFilled(SDL_Surface& picture, bool bitmap, std::uint32_t* pixels) {
    const SurfaceHandle target = surfaceOn(pixels, {picture.w, picture.h});
    // A bitmap's fourth byte means nothing; what a PNG lets through is black.
    if (bitmap) SDL_SetSurfaceBlendMode(&picture, SDL_BLENDMODE_NONE);
    if (!target || SDL_BlitSurface(&picture, nullptr, target.get(), nullptr) != 0) return false;
    const std::size_t count = static_cast<std::size_t>(picture.w) * static_cast<std::size_t>(picture.h);
    for (std::size_t i = 0; i < count; ++i) pixels[i] &= white.rgb;
    return true;
}

bool copyWhole(SDL_Surface& picture, std::uint32_t* pixels) {
    const SurfaceHandle plain(SDL_ConvertSurfaceFormat(&picture, SDL_PIXELFORMAT_ARGB8888, 0));
    if (!plain) return false;
    const auto width = static_cast<std::size_t>(plain->w);
    for (int y = 0; y < plain->h; ++y)
        std::memcpy(pixels + static_cast<std::size_t>(y) * width,
                    static_cast<const char*>(plain->pixels) + std::ptrdiff_t{y} * plain->pitch, width * 4);
    return true;
}

}  // namespace

bool decodePictureHere(std::string_view bytes, Opacity opacity, const PixelRoom& room) {
    const SurfaceHandle picture = surfaceOf(bytes);
    if (!picture) return false;
    std::uint32_t* const pixels = room({picture->w, picture->h});
    return opacity == Opacity::kept ? copyWhole(*picture, pixels)
                                    : copyFilled(*picture, bytes.starts_with("BM"), pixels);
}

void failDamaged(const Files& files, TextView path) {
    throw DataError("Das Bild \"" + files.display(path) + Text("\" ist beschädigt."_t));
}

namespace {

Bitmap decoded(const Files& files, TextView path, const std::string& bytes) {
    Bitmap bitmap;
    const bool good = decodePicture(bytes, Opacity::filled, [&](Size size) {
        bitmap = Bitmap(size);
        return bitmap.row(0);
    });
    if (!good) failDamaged(files, path);
    return bitmap;
}

}  // namespace

Bitmap loadPicture(const Files& files, TextView path) {
    return decoded(files, path, files.read(path));
}

Bitmap loadPicture(const Files& files, TextView path, Size size) {
    const std::string bytes = files.read(path, limits::smallPictureBytes);
    const FileBytes file(bytes);
    const bool right = file.startsWith(pngMagic) && file.has(16, 8) &&
                       file.bigU32(16) == static_cast<std::uint32_t>(size.w) &&
                       file.bigU32(20) == static_cast<std::uint32_t>(size.h);
    if (!right) failDamaged(files, path);
    return decoded(files, path, bytes);
}

std::string pngFile(const Bitmap& bitmap) {
    if (bitmap.empty()) return {};
    Bitmap copy = bitmap;
    const SurfaceHandle surface = surfaceOn(copy.row(0), copy.size());
    std::string file;
    if (!surface || IMG_SavePNG_RW(surface.get(), writerTo(file), 1) != 0) return {};
    return file;
}

std::string jpegFile(const Bitmap& bitmap, int quality) {
    if (bitmap.empty()) return {};
    Bitmap copy = bitmap;
    const SurfaceHandle surface = surfaceOn(copy.row(0), copy.size());
    std::string file;
    if (!surface || IMG_SaveJPG_RW(surface.get(), writerTo(file), 1, quality) != 0) return {};
    return file;
}

bool savePng(const Bitmap& bitmap, const std::string& path) {
    const std::string file = pngFile(bitmap);
    if (file.empty()) return false;
    try {
        replaceFile(path, file);
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

}  // namespace zentrox
