// The page in a browser: each window is a canvas of its own, the clock is the browser's, and every wait gives the
// browser its turn.
#pragma once

#include <map>

#include "platform/machine/files.h"
#include "platform/window/backend.h"

namespace zentrox::web {

class Page : public Backend {
public:
    explicit Page(const Files& files) : files_(files) {}

    // True once the game wants to begin again from its menu.
    bool restartWanted() const { return restartWanted_; }

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
    void messageBoxOpened(const MessageBox& box) override;
    std::array<std::uint8_t, 256> keys() override;
    std::string clipboard() override;
    void setClipboard(const std::string& text) override;
    std::uint64_t seed() override;
    bool start(const std::vector<std::string>& command) override;
    void restart() override { restartWanted_ = true; }

private:
    Window* top() const;  // null if none is open
    void show(Window& window, int number);

    const Files& files_;
    std::map<Window*, int> shown_;  // what the page calls them
    int lastNumber_ = 0;
    std::vector<std::uint32_t> pixels_;  // what is handed to a canvas, as it wants it
    Milliseconds frameDue_ = 0;
    Milliseconds lastPresent_ = -1000;
    std::optional<Milliseconds> presentDue_;
    bool restartWanted_ = false;
};

}  // namespace zentrox::web
