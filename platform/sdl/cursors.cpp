#include "platform/sdl/cursors.h"

#include <array>
#include <string_view>
#include <vector>

#include "platform/codec/pictures.h"
#include "platform/values/error.h"

namespace zentrox::sdl {

namespace {

constexpr int iconSide = 32;
constexpr std::uint32_t inkBlack = 0xFF000000U;
constexpr std::uint32_t inkWhite = 0xFFFFFFFFU;

// The arrow, and beside it the question mark: X is black, o white.
constexpr std::array<std::string_view, 21> drawn{
    "X                       ", "XX             XXXXX    ", "XoX           XoooooX   ", "XooX         XooXXXooX  ",
    "XoooX        XooX XooX  ", "XooooX        XX  XooX  ", "XoooooX          XooX   ", "XooooooX        XooX    ",
    "XoooooooX       XooX    ", "XooooooooX      XooX    ", "XoooooooooX      XX     ", "XooooooXXXXX    XXXX    ",
    "XoooXooX        XooX    ", "XooXXooX        XooX    ", "XoX  XooX        XX     ", "XX   XooX               ",
    "X     XooX              ", "      XooX              ", "       XooX             ", "       XooX             ",
    "        XX              ",
};
constexpr int arrowWidth = 12;  // the columns of the arrow alone

SDL_Cursor* makeCursor(std::vector<std::uint32_t>& pixels, int width, int height, Point hotSpot) {
    SDL_Surface* const surface =
        SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), width, height, 32, width * 4, SDL_PIXELFORMAT_ARGB8888);
    if (surface == nullptr) return nullptr;
    SDL_Cursor* const cursor = SDL_CreateColorCursor(surface, hotSpot.x, hotSpot.y);
    SDL_FreeSurface(surface);
    return cursor;
}

SDL_Cursor* makeDrawn(int columns, int scale) {
    const int width = columns * scale;
    const int height = static_cast<int>(drawn.size()) * scale;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const char ink = drawn[static_cast<std::size_t>(y / scale)][static_cast<std::size_t>(x / scale)];
            pixels[static_cast<std::size_t>(y) * width + x] = ink == 'X' ? inkBlack : ink == 'o' ? inkWhite : 0;
        }
    return makeCursor(pixels, width, height, {0, 0});
}

}  // namespace

void Cursors::show(const Pointer& pointer, int scale) {
    SDL_ShowCursor(pointer.mode == Pointer::Mode::invisible ? SDL_DISABLE : SDL_ENABLE);
    if (pointer.mode == Pointer::Mode::invisible) return;
    const Text name = pointer.mode == Pointer::Mode::own        ? pointer.iconFile
                      : pointer.mode == Pointer::Mode::question ? Text("?")
                                                                : Text();
    Cursor& cursor = made_[{name, scale}];
    if (!cursor) cursor = make(pointer, scale);
    if (cursor) SDL_SetCursor(cursor.get());
}

Cursors::Cursor Cursors::make(const Pointer& pointer, int scale) const {
    if (pointer.mode == Pointer::Mode::own) {
        if (Cursor icon = makeIcon(pointer.iconFile, scale)) return icon;
    }
    const bool question = pointer.mode == Pointer::Mode::question;
    return Cursor(makeDrawn(question ? static_cast<int>(drawn[0].size()) : arrowWidth, scale));
}

// Of the sizes in the file the best one is taken; what it lacks is made up by whole pixels.
Cursors::Cursor Cursors::makeIcon(const Text& file, int scale) const {
    try {
        const Icon icon = loadIcon(files_, file, iconSide * scale);
        const int wanted = iconSide * scale;
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(wanted) * wanted);
        for (int y = 0; y < wanted; ++y)
            for (int x = 0; x < wanted; ++x) {
                const std::size_t from =
                    static_cast<std::size_t>(y * icon.size.h / wanted) * icon.size.w + x * icon.size.w / wanted;
                pixels[static_cast<std::size_t>(y) * wanted + x] = icon.pixels[from];
            }
        return Cursor(makeCursor(pixels, wanted, wanted, {wanted / 2, wanted / 2}));
    } catch (const DataError&) {
        return nullptr;
    }
}

}  // namespace zentrox::sdl
