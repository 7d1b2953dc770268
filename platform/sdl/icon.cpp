#include "platform/sdl/icon.h"

namespace zentrox {

// Made by the build from the icon's drawing: four bytes a pixel, red first, then green, blue and opacity.
extern const unsigned char IconPixel[];
extern const unsigned int IconBytes;

}  // namespace zentrox

namespace zentrox::sdl {

namespace {

constexpr int side = 64;  // pixels

}  // namespace

void setIcon(SDL_Window& window) {
    if (IconBytes != 4U * side * side) return;
    auto* const pixels = const_cast<unsigned char*>(IconPixel);
    SDL_Surface* const icon =
        SDL_CreateRGBSurfaceWithFormatFrom(pixels, side, side, 32, 4 * side, SDL_PIXELFORMAT_RGBA32);
    if (icon == nullptr) return;
    SDL_SetWindowIcon(&window, icon);
    SDL_FreeSurface(icon);
}

}  // namespace zentrox::sdl
