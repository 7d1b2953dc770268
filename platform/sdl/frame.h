// The frames of the windows that stand over another one, in the classic grey look.
#pragma once

#include "platform/picture/bitmap.h"
#include "platform/window/window.h"

namespace zentrox::sdl {

struct FrameLook {
    bool active = true;      // the window is the topmost one
    bool closeDown = false;  // its close box is pressed
};

// Draws the frame of a window round its client area; nothing for `Frame::none`.
void drawFrame(Bitmap& onto, const Window& window, const Rect& client, FrameLook how);

}  // namespace zentrox::sdl
