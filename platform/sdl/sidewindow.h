// A native window beside the one of the game, which shows a picture of its own and knows nothing of the game's
// windows.
#pragma once

#include <SDL.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/picture/bitmap.h"
#include "platform/values/geometry.h"

namespace zentrox::sdl {

class Desktop;

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
    // It has another size or was covered.
    std::function<void()> onExposed;

private:
    bool take(const SDL_Event& event);
    bool takeWindow(const SDL_WindowEvent& event);

    struct WindowEnd {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    };
    Desktop& desktop_;
    std::unique_ptr<SDL_Window, WindowEnd> native_;
};

}  // namespace zentrox::sdl
