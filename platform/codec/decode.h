// What the readers of pictures and of icons share.
#pragma once

#include <SDL_surface.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/machine/files.h"
#include "platform/values/geometry.h"

namespace zentrox {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using SurfaceHandle = std::unique_ptr<SDL_Surface, FreeSurface>;

// The bytes of a file that is little-endian or big-endian as its format says. Every read is within them: `has`
// first.
class FileBytes {
public:
    explicit FileBytes(std::string_view bytes) : bytes_(bytes) {}
    std::size_t size() const { return bytes_.size(); }
    bool has(std::size_t at, std::size_t length) const { return at <= size() && length <= size() - at; }
    bool startsWith(std::string_view magic) const { return bytes_.starts_with(magic); }
    std::string_view from(std::size_t at) const { return bytes_.substr(at); }
    std::uint32_t u8(std::size_t at) const { return static_cast<unsigned char>(bytes_[at]); }
    std::uint32_t u16(std::size_t at) const { return u8(at) | u8(at + 1) << 8U; }
    std::uint32_t u32(std::size_t at) const { return u16(at) | u16(at + 2) << 16U; }
    std::uint32_t bigU16(std::size_t at) const { return u8(at) << 8U | u8(at + 1); }
    std::uint32_t bigU32(std::size_t at) const { return bigU16(at) << 16U | bigU16(at + 2); }

private:
    std::string_view bytes_;
};

// What becomes of what a picture lets through.
enum class Opacity : std::uint8_t {
    filled,  // 0x00RRGGBB; it is black
    kept     // 0xAARRGGBB
};

// Makes room for the pixels of a picture of this size.
using PixelRoom = std::function<std::uint32_t*(Size size)>;

// The picture in a JPEG, bitmap or PNG file, row by row. False where it is another file, incomplete, or claims a
// size that its bytes can't fill. A worker decodes it if there is one.
bool decodePicture(std::string_view bytes, Opacity opacity, const PixelRoom& room);
// The same, always in this process.
bool decodePictureHere(std::string_view bytes, Opacity opacity, const PixelRoom& room);

// The failure of a file that is no picture, or none any more.
[[noreturn]] void failDamaged(const Files& files, TextView path);

}  // namespace zentrox
