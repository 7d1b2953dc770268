#include "platform/sdl/sidewindow.h"

#include <algorithm>

#include "platform/sdl/desktop.h"

namespace zentrox::sdl {

namespace {

constexpr int gap = 8;  // between the two windows

struct Borders {
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
};

// What the window manager puts round a window; nothing where it does not tell.
Borders bordersOf(SDL_Window* window) {
    Borders borders;
    SDL_GetWindowBordersSize(window, &borders.top, &borders.left, &borders.bottom, &borders.right);
    return borders;
}

// Right of the game where there is room for it, else where the window manager likes. A window manager takes the
// place of a new window for that of its border.
SDL_Point placeFor(SDL_Window* game, Size size) {
    const SDL_Point anywhere{SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED};
    SDL_Rect desktop{};
    if (game == nullptr || SDL_GetDisplayUsableBounds(SDL_GetWindowDisplayIndex(game), &desktop) != 0)
        return anywhere;
    int x = 0;
    int y = 0;
    int width = 0;
    SDL_GetWindowPosition(game, &x, &y);
    SDL_GetWindowSize(game, &width, nullptr);
    const Borders borders = bordersOf(game);
    const int own = borders.left + size.w + borders.right;
    const int both = borders.left + width + borders.right + gap + own;
    if (both > desktop.w) return anywhere;
    // The game makes room, if that is all that is needed.
    const int right = desktop.x + desktop.w;
    if (x - borders.left + both > right) {
        x = right - both + borders.left;
        SDL_SetWindowPosition(game, x, y);
    }
    const int height = borders.top + size.h + borders.bottom;
    const int lowest = desktop.y + desktop.h - height;
    return {x + width + borders.right + gap, std::max(desktop.y, std::min(y - borders.top, lowest))};
}

// Whether a key types into a list; the others are the game's, wherever they are pressed.
bool types(const SDL_Keysym& key) {
    constexpr SDL_Keycode firstWithoutCharacter = 0x7F;
    if ((key.mod & (KMOD_CTRL | KMOD_ALT | KMOD_GUI)) != 0) return false;
    return key.sym == SDLK_BACKSPACE || key.sym == SDLK_ESCAPE ||
           (key.sym >= SDLK_SPACE && key.sym < firstWithoutCharacter) ||
           (key.sym > firstWithoutCharacter && key.sym < SDLK_SCANCODE_MASK);
}

}  // namespace

int displays() {
    return SDL_GetNumVideoDisplays();
}

SideWindow::SideWindow(Desktop& desktop, const std::string& title, Size size) : desktop_(desktop) {
    const SDL_Point at = placeFor(desktop.window(), size);
    native_.reset(SDL_CreateWindow(title.c_str(), at.x, at.y, size.w, size.h, SDL_WINDOW_RESIZABLE));
    if (!native_) return;
    SDL_SetWindowMinimumSize(native_.get(), size.w * 4 / 5, size.h / 2);
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

bool SideWindow::take(const SDL_Event& event) {
    const Uint32 own = SDL_GetWindowID(native_.get());
    switch (event.type) {
        case SDL_WINDOWEVENT:
            if (event.window.windowID != own) goWithGame(event.window);
            return event.window.windowID == own && takeWindow(event.window);
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            if (event.key.windowID != own || !typing || !types(event.key.keysym)) return false;
            return takeKey(event.key);
        case SDL_TEXTINPUT:
            if (event.text.windowID != own || !typing) return false;
            if (onType) onType(event.text.text);
            return true;
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

bool SideWindow::takeKey(const SDL_KeyboardEvent& event) {
    const SDL_Keycode sym = event.keysym.sym;
    if (event.type == SDL_KEYDOWN && onErase && (sym == SDLK_BACKSPACE || sym == SDLK_ESCAPE))
        onErase(sym == SDLK_ESCAPE);
    return true;
}

// The clock of the game stands still while it is minimised, and so would all that is here.
void SideWindow::goWithGame(const SDL_WindowEvent& event) {
    if (event.event == SDL_WINDOWEVENT_MINIMIZED) SDL_HideWindow(native_.get());
    if (event.event == SDL_WINDOWEVENT_RESTORED) SDL_ShowWindow(native_.get());
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
