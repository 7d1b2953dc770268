// A machine for tests of the comforts, which notes what they ask of it.
#pragma once

#include <vector>

#include "comfort/machine.h"

namespace zentrox::test {

class FakeMachine final : public ComfortMachine {
public:
    bool full = false;
    std::vector<bool> soundPaused;

    bool fullScreen() override { return full; }
    void setFullScreen(bool on) override { full = on; }
    Enlarging enlarging() override { return Enlarging::whole; }
    void setEnlarging(Enlarging /*how*/) override {}
    void setFineLetters(bool /*on*/) override {}
    void setPausesAway(bool /*on*/) override {}
    void usePad(bool /*on*/) override {}
    void useTouch(bool /*on*/) override {}
    void setSoundPaused(bool paused) override { soundPaused.push_back(paused); }
    void setOverlay(std::function<void(Bitmap&, const Rect&, const Rect&)> /*overlay*/) override {}
    void refreshOverlay() override {}
};

}  // namespace zentrox::test
