// The desktop: real windows, a real clock.
#pragma once

#include <SDL.h>

#include <chrono>
#include <deque>
#include <map>
#include <memory>

#include "platform/machine/files.h"
#include "platform/sdl/cursors.h"
#include "platform/window/backend.h"

namespace zentrox::sdl {

class Desktop : public Backend {
public:
    // `restartCommand` starts this program anew, from its menu.
    Desktop(const Files& files, std::vector<std::string> restartCommand);
    ~Desktop() override;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    Milliseconds clock() override;
    std::optional<Input> nextInput() override;
    void sleep(std::optional<Milliseconds> until) override;
    Milliseconds nextFrame() override;
    void opened(Window& window) override;
    void closed(Window& window) override;
    void reshaped(Window& window) override;
    void pointerChanged(Window& window) override;
    void present() override;
    std::optional<Milliseconds> presentDue() override { return presentDue_; }
    std::array<std::uint8_t, 256> keys() override;
    std::string clipboard() override;
    void setClipboard(const std::string& text) override;
    std::uint64_t seed() override;
    bool start(const std::vector<std::string>& command) override;
    void restart() override;

private:
    struct WindowEnd {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    };
    // A window of the game and what shows it. The picture stands at `corner`, enlarged `scale` times.
    struct Shown {
        Window* window = nullptr;
        std::unique_ptr<SDL_Window, WindowEnd> native;
        int scale = 1;
        int windowedScale = 1;
        Point corner;
        bool exposed = true;  // all of it has to be shown
        bool fullScreen = false;
    };

    void startVideo();
    Shown* of(const Window& window);
    Shown* active() { return shown_.empty() ? nullptr : &shown_.back(); }
    int fittingScale(Size client) const;
    static Uint32 flagsOf(const Window& window);
    void place(Shown& shown, const Shown* owner);
    void setFullScreen(Shown& shown, bool on);
    void layOut(Shown& shown);
    void show(Shown& shown);

    void translate(const SDL_Event& event);
    void translateWindow(const SDL_WindowEvent& event);
    void translateKey(const SDL_KeyboardEvent& event);
    void translateText(const char* utf8);
    Point inGame(const Shown& shown, int x, int y) const;

    const Files& files_;
    std::vector<std::string> restartCommand_;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    bool videoStarted_ = false;
    bool fullScreen_ = false;   // what the player wants for the game's windows
    std::vector<Shown> shown_;  // the topmost one is the last
    std::deque<Input> pending_;
    Milliseconds frameDue_ = 0;
    Milliseconds lastPresent_ = -1000;
    std::optional<Milliseconds> presentDue_;
    std::unique_ptr<Cursors> cursors_;
};

}  // namespace zentrox::sdl
