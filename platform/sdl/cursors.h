// The pointer's pictures on the desktop, in the size of the window they belong to.
#pragma once

#include <SDL.h>

#include <map>
#include <memory>

#include "platform/machine/files.h"
#include "platform/window/window.h"

namespace zentrox::sdl {

class Cursors {
public:
    explicit Cursors(const Files& files) : files_(files) {}

    // Shows a pointer, its pixels enlarged `scale` times. An icon that can't be read shows as the arrow.
    void show(const Pointer& pointer, int scale);

private:
    struct CursorEnd {
        void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
    };
    using Cursor = std::unique_ptr<SDL_Cursor, CursorEnd>;

    Cursor make(const Pointer& pointer, int scale) const;
    Cursor makeIcon(const Text& file, int scale) const;

    const Files& files_;
    std::map<std::pair<Text, int>, Cursor> made_;
};

}  // namespace zentrox::sdl
