#include "platform/sdl/icon.h"

#include <vector>

#include "platform/picture/embedded.h"

namespace zentrox {

// Made by the build from the program's icon: its colours, and below them its opacity in grey.
extern const EmbeddedPicture Icon;

}  // namespace zentrox

namespace zentrox::sdl {

void setIcon(SDL_Window& window) {
    const Bitmap both = unpacked(Icon);
    const int side = both.width();
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(side) * side);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) pixels.push_back(both.row(y)[x] | (both.row(y + side)[x] & 0xFFU) << 24U);
    SDL_Surface* const icon =
        SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), side, side, 32, 4 * side, SDL_PIXELFORMAT_ARGB8888);
    if (icon == nullptr) return;
    SDL_SetWindowIcon(&window, icon);
    SDL_FreeSurface(icon);
}

}  // namespace zentrox::sdl
