// Reading picture and icon files.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/machine/files.h"
#include "platform/picture/bitmap.h"

namespace zentrox {

// A pointer's picture: 0xAARRGGBB a pixel, alpha 0 or more; the hot spot is the centre.
struct Icon {
    Size size;
    std::vector<std::uint32_t> pixels;
    Text file;  // the game path that it came from
};

// Reads a JPEG, bitmap or PNG file, told by its content. Throws `DataError` where it is missing, cut or damaged, or
// claims to be larger than its bytes can be.
Bitmap loadPicture(const Files& files, TextView path);
// The same for a small PNG of which the size is known; throws as well where it has another one, before it is
// decoded.
Bitmap loadPicture(const Files& files, TextView path, Size size);

// Reads an icon file (1, 4, 8, 24 or 32 bits a pixel, or PNG) and takes the picture in it whose width is nearest to
// `side` pixels, the one of more colours where two are. Throws `DataError` where it is missing or damaged.
Icon loadIcon(const Files& files, TextView path, int side = 32);

// Writes a bitmap as a PNG; false if that fails. `path` is a path of the system.
bool savePng(const Bitmap& bitmap, const std::string& path);

// The bytes of such a file, and of a JPEG; `quality` goes from 0 to 100. Empty if that fails.
std::string pngFile(const Bitmap& bitmap);
std::string jpegFile(const Bitmap& bitmap, int quality);

}  // namespace zentrox
