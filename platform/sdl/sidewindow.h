// A native window beside the one of the game, which shows a picture of its own and knows nothing of the game's
// windows. Keys that it does not take are the game's, wherever they are pressed.
#pragma once

#include <SDL.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/picture/bitmap.h"
#include "platform/values/geometry.h"

namespace zentrox::sdl {

class Desktop;

// How many screens there are.
int displays();

class SideWindow {
public:
    // Opens to the right of the game's window, which has to be there. The desktop must outlive it.
    SideWindow(Desktop& desktop, const std::string& title, Size size);
    ~SideWindow();
    SideWindow(const SideWindow&) = delete;
    SideWindow& operator=(const SideWindow&) = delete;

    Size size() const;
    void show(const Bitmap& picture);

    // Each from a turn of the queue. Points are pixels of the picture; `lines` is positive upward.
    std::function<void(Point at)> onClick;
    std::function<void(Point at, int lines)> onWheel;
    std::function<void()> onClose;
    // While `typing` is on, what is typed here is not the game's: characters in UTF-8, and backspace or escape,
    // which erase one of them or all.
    bool typing = false;
    std::function<void(const char* utf8)> onType;
    std::function<void(bool all)> onErase;
    // It has another size or was covered.
    std::function<void()> onExposed;

private:
    bool take(const SDL_Event& event);
    bool takeWindow(const SDL_WindowEvent& event);
    bool takeKey(const SDL_KeyboardEvent& event);
    void goWithGame(const SDL_WindowEvent& event);

    struct WindowEnd {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    };
    Desktop& desktop_;
    std::unique_ptr<SDL_Window, WindowEnd> native_;
};

}  // namespace zentrox::sdl
