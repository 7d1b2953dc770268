// What the comforts need of the machine beyond the game's own needs.
#pragma once

#include <functional>

#include "platform/picture/bitmap.h"
#include "platform/picture/enlarge.h"

namespace zentrox {

class ComfortMachine {
public:
    virtual ~ComfortMachine() = default;

    virtual bool fullScreen() = 0;
    virtual void setFullScreen(bool on) = 0;
    virtual Enlarging enlarging() = 0;
    virtual void setEnlarging(Enlarging how) = 0;
    // Letters are drawn in the screen's pixels and not enlarged, where fonts note them.
    virtual void setFineLetters(bool on) = 0;
    // While another program has the keyboard, the game stands still.
    virtual void setPausesAway(bool on) = 0;
    // Game pads are keyboards; a long tap of a finger is a click of the right button.
    virtual void usePad(bool on) = 0;
    virtual void useTouch(bool on) = 0;
    // All that plays stands still until it is told to go on, and so does the clock that films go by.
    virtual void setSoundPaused(bool paused) = 0;
    // Draws over the picture of all windows, in pixels of the game; `base` is where the client area of the
    // bottommost one stands, `top` that of the topmost one. Drawing is held to the bitmap's clip.
    virtual void setOverlay(std::function<void(Bitmap& picture, const Rect& base, const Rect& top)> overlay) = 0;
    // The overlay would look different now.
    virtual void refreshOverlay() = 0;
};

}  // namespace zentrox
