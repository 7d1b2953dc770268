// The desktop as the comforts need it.
#pragma once

#include <optional>

#include "comfort/machine.h"
#include "platform/machine/sound.h"
#include "platform/sdl/desktop.h"

namespace zentrox {

// A clock that can be made to stand still; told in another thread than it is asked in, but not at the same time.
class SoundClock {
public:
    explicit SoundClock(Backend& machine) : machine_(machine) {}
    Milliseconds now() const { return stoppedAt_.value_or(machine_.clock()) - lost_; }
    void stop() { stoppedAt_ = machine_.clock(); }
    void goOn() {
        lost_ += machine_.clock() - *stoppedAt_;
        stoppedAt_.reset();
    }

private:
    Backend& machine_;
    std::optional<Milliseconds> stoppedAt_;
    Milliseconds lost_ = 0;
};

class DesktopComfort final : public ComfortMachine {
public:
    DesktopComfort(sdl::Desktop& desktop, SoundDevice& sound, SoundClock& clock)
        : desktop_(desktop),
          sound_(sound),
          clock_(clock) {}

    bool fullScreen() override { return desktop_.fullScreen(); }
    void setFullScreen(bool on) override { desktop_.setFullScreen(on); }
    Enlarging enlarging() override { return desktop_.enlarging(); }
    void setEnlarging(Enlarging how) override { desktop_.setEnlarging(how); }
    void setFineLetters(bool on) override { desktop_.setFineLetters(on); }
    void setPausesAway(bool on) override { desktop_.setPausesAway(on); }
    void usePad(bool on) override { desktop_.usePad(on); }
    void useTouch(bool on) override { desktop_.useTouch(on); }
    void setSoundPaused(bool paused) override {
        if (paused) sound_.setPaused(true);
        paused ? clock_.stop() : clock_.goOn();
        if (!paused) sound_.setPaused(false);
    }
    void setOverlay(std::function<void(Bitmap& picture, const Rect& base, const Rect& top)> overlay) override {
        desktop_.setOverlay(std::move(overlay));
    }
    void refreshOverlay() override { desktop_.refreshOverlay(); }

private:
    sdl::Desktop& desktop_;
    SoundDevice& sound_;
    SoundClock& clock_;
};

}  // namespace zentrox
