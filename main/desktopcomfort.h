// The desktop as the comforts need it.
#pragma once

#include "comfort/machine.h"
#include "platform/sdl/desktop.h"

namespace zentrox {

class DesktopComfort final : public ComfortMachine {
public:
    explicit DesktopComfort(sdl::Desktop& desktop) : desktop_(desktop) {}

    bool fullScreen() override { return desktop_.fullScreen(); }
    void setFullScreen(bool on) override { desktop_.setFullScreen(on); }
    Enlarging enlarging() override { return desktop_.enlarging(); }
    void setEnlarging(Enlarging how) override { desktop_.setEnlarging(how); }
    void setOverlay(std::function<void(Bitmap& picture, const Rect& base)> overlay) override {
        desktop_.setOverlay(std::move(overlay));
    }
    void refreshOverlay() override { desktop_.refreshOverlay(); }

private:
    sdl::Desktop& desktop_;
};

}  // namespace zentrox
