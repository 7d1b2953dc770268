// The desktop: a real window, real input, a real clock.
#pragma once

#include <chrono>

#include "platform/sdl/events.h"
#include "platform/window/backend.h"

namespace zentrox::sdl {

class Desktop : public Backend {
public:
    // `restartCommand` starts this program anew, from its menu.
    Desktop(const Files& files, std::vector<std::string> restartCommand);
    ~Desktop() override;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    // Another command that starts this program anew.
    void setRestartCommand(std::vector<std::string> command) { restartCommand_ = std::move(command); }
    // What the player has chosen of the picture; may be set before the first window opens.
    bool fullScreen() const { return screen_.fullScreen(); }
    void setFullScreen(bool on);
    Enlarging enlarging() const { return screen_.enlarging(); }
    void setEnlarging(Enlarging how);
    // What is drawn over the game's picture, see `Scene`; and that it would look different now.
    void setOverlay(std::function<void(Bitmap& picture, const Rect& base, const Rect& top)> overlay) {
        screen_.setOverlay(std::move(overlay));
        refreshOverlay();
    }
    void refreshOverlay() { screen_.expose(); }
    // See `Scene`.
    void setFineLetters(bool on) { screen_.setFineLetters(on); }
    // See `Events`.
    void usePad(bool on) { events_.usePad(on); }
    void useTouch(bool on) { events_.useTouch(on); }
    // Away from the keyboard's focus the game stands still, as it does while it is minimised.
    void setPausesAway(bool on) { events_.setPausesAway(on); }
    // Asked for each event before the game's window is told of it; true if it is another window's. One at most.
    void onForeign(std::function<bool(const SDL_Event&)> take) { events_.foreign = std::move(take); }
    SDL_Window* window() const { return screen_.window(); }
    // The pointer as it is over another window, and over the game again.
    void showPlainPointer() { cursors_.show({}, 1); }
    void showGamesPointer() { events_.showPointer(); }
    // Called before the clock stands still because the window was minimised, and after it goes on. Who asks the
    // clock in another thread must not between the two.
    std::function<void(bool paused)> onPause;

    Milliseconds clock() override;
    std::optional<Input> nextInput() override { return events_.next(); }
    void sleep(std::optional<Milliseconds> until) override;
    Milliseconds nextFrame() override;
    void opened(Window& window) override;
    void closed(Window& window) override;
    void reshaped(Window& window) override;
    void pointerChanged(Window& window) override;
    void present() override;
    std::optional<Milliseconds> presentDue() override { return presentDue_; }
    bool wantsToClose() override { return events_.closeWanted(); }
    std::array<std::uint8_t, 256> keys() override { return events_.keys(); }
    std::string clipboard() override;
    void setClipboard(const std::string& text) override;
    std::uint64_t seed() override;
    // The same random numbers each time, in place of others.
    void setSeed(std::uint64_t seed) { seed_ = seed; }
    bool start(const std::vector<std::string>& command) override;
    void restart() override;

private:
    using Clock = std::chrono::steady_clock;

    void pause(bool on);
    std::optional<Milliseconds> settle();

    std::vector<std::string> restartCommand_;
    std::optional<std::uint64_t> seed_;
    Clock::time_point begin_ = Clock::now();
    std::optional<Clock::time_point> pausedAt_;
    Milliseconds frameDue_ = 0;
    Milliseconds lastPresent_ = -1000;
    std::optional<Milliseconds> presentDue_;
    Screen screen_;
    Cursors cursors_;
    Events events_;
};

}  // namespace zentrox::sdl
