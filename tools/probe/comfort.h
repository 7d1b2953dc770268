// The machine of the probe as the comforts need it: what they ask for is kept, and seen by the walk's shots.
#pragma once

#include "comfort/machine.h"
#include "platform/machine/sound.h"
#include "platform/probe/backend.h"

namespace zentrox::probe {

class ProbeComfort final : public ComfortMachine {
public:
    ProbeComfort(ProbeBackend& backend, SoundDevice& sound) : backend_(backend), sound_(sound) {}

    bool fullScreen() override { return fullScreen_; }
    void setFullScreen(bool on) override { fullScreen_ = on; }
    Enlarging enlarging() override { return enlarging_; }
    void setEnlarging(Enlarging how) override { enlarging_ = how; }
    void setFineLetters(bool /*on*/) override {}
    void setPausesAway(bool /*on*/) override {}
    void usePad(bool /*on*/) override {}
    void useTouch(bool /*on*/) override {}
    void setSoundPaused(bool paused) override { sound_.setPaused(paused); }
    void setOverlay(std::function<void(Bitmap& picture, const Rect& base, const Rect& top)> overlay) override {
        backend_.overlay = std::move(overlay);
    }
    void refreshOverlay() override {}

private:
    ProbeBackend& backend_;
    SoundDevice& sound_;
    bool fullScreen_ = false;
    Enlarging enlarging_ = Enlarging::whole;
};

}  // namespace zentrox::probe
