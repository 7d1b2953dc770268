#include "platform/sdl/sidewindow.h"

#include <algorithm>

#include "platform/sdl/desktop.h"

namespace zentrox::sdl {

namespace {

constexpr int gap = 8;  // between the two windows

// Right of the game where there is room for it, else where the window manager likes.
SDL_Point placeFor(SDL_Window* game, Size size) {
    SDL_Point at{SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED};
    SDL_Rect desktop{};
    if (game == nullptr || SDL_GetDisplayUsableBounds(SDL_GetWindowDisplayIndex(game), &desktop) != 0) return at;
    int x = 0;
    int y = 0;
    int width = 0;
    SDL_GetWindowPosition(game, &x, &y);
    SDL_GetWindowSize(game, &width, nullptr);
    // The game makes room, if that is all that is needed.
    const int both = width + gap + size.w;
    if (x + both > desktop.x + desktop.w && both <= desktop.w) {
        x = desktop.x + desktop.w - both;
        SDL_SetWindowPosition(game, x, y);
    }
    at.x = std::min(x + width + gap, desktop.x + desktop.w - size.w);
    at.y = std::max(desktop.y, std::min(y, desktop.y + desktop.h - size.h));
    return at;
}

}  // namespace

SideWindow::SideWindow(Desktop& desktop, const std::string& title, Size size) : desktop_(desktop) {
    const SDL_Point at = placeFor(desktop.window(), size);
    native_.reset(SDL_CreateWindow(title.c_str(), at.x, at.y, size.w, size.h,
                                   SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI));
    if (!native_) return;
    SDL_SetWindowMinimumSize(native_.get(), size.w / 2, size.h / 2);
    desktop_.onForeign([this](const SDL_Event& event) { return take(event); });
}

SideWindow::~SideWindow() {
    desktop_.onForeign(nullptr);
}

Size SideWindow::size() const {
    SDL_Surface* const target = native_ ? SDL_GetWindowSurface(native_.get()) : nullptr;
    return target != nullptr ? Size{target->w, target->h} : Size{};
}

void SideWindow::show(const Bitmap& picture) {
    SDL_Surface* const target = native_ ? SDL_GetWindowSurface(native_.get()) : nullptr;
    if (target == nullptr || picture.empty()) return;
    // SDL asks for pixels that it could write to, and only reads them.
    void* const pixels = const_cast<std::uint32_t*>(picture.row(0));
    SDL_Surface* const from = SDL_CreateRGBSurfaceWithFormatFrom(pixels, picture.width(), picture.height(), 32,
                                                                 picture.width() * 4, SDL_PIXELFORMAT_RGB888);
    if (from == nullptr) return;
    SDL_BlitSurface(from, nullptr, target, nullptr);
    SDL_FreeSurface(from);
    SDL_UpdateWindowSurface(native_.get());
}

// Keys are the game's, wherever they are pressed.
bool SideWindow::take(const SDL_Event& event) {
    const Uint32 own = SDL_GetWindowID(native_.get());
    switch (event.type) {
        case SDL_WINDOWEVENT: return event.window.windowID == own && takeWindow(event.window);
        case SDL_MOUSEMOTION: return event.motion.windowID == own;
        case SDL_MOUSEBUTTONUP: return event.button.windowID == own;
        case SDL_MOUSEBUTTONDOWN:
            if (event.button.windowID != own) return false;
            if (onClick && event.button.button == SDL_BUTTON_LEFT) onClick({event.button.x, event.button.y});
            return true;
        case SDL_MOUSEWHEEL: {
            if (event.wheel.windowID != own) return false;
            Point at;
            SDL_GetMouseState(&at.x, &at.y);
            if (onWheel) onWheel(at, event.wheel.y);
            return true;
        }
        default: return false;
    }
}

bool SideWindow::takeWindow(const SDL_WindowEvent& event) {
    switch (event.event) {
        case SDL_WINDOWEVENT_CLOSE:
            if (onClose) onClose();
            return true;
        case SDL_WINDOWEVENT_ENTER: desktop_.showPlainPointer(); return true;
        case SDL_WINDOWEVENT_LEAVE: desktop_.showGamesPointer(); return true;
        case SDL_WINDOWEVENT_SIZE_CHANGED:
        case SDL_WINDOWEVENT_EXPOSED:
            if (onExposed) onExposed();
            return true;
        default: return true;
    }
}

}  // namespace zentrox::sdl
