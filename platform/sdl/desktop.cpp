#include "platform/sdl/desktop.h"

#include <algorithm>
#include <iostream>
#include <thread>

#include "platform/machine/system.h"

namespace zentrox::sdl {

namespace {

constexpr Milliseconds frame = 16;

}  // namespace

Desktop::Desktop(const Files& files, std::vector<std::string> restartCommand)
    : restartCommand_(std::move(restartCommand)),
      cursors_(files),
      events_(screen_, cursors_) {
    events_.onStanding = [this](bool stands) { pause(stands); };
}

Desktop::~Desktop() = default;

void Desktop::setFullScreen(bool on) {
    screen_.setFullScreen(on);
    if (screen_.ready()) events_.sizesChanged();
}

void Desktop::setEnlarging(Enlarging how) {
    screen_.setEnlarging(how);
    if (screen_.ready()) events_.sizesChanged();
}

// --- time

Milliseconds Desktop::clock() {
    const auto now = pausedAt_.value_or(Clock::now());
    return std::chrono::duration_cast<std::chrono::milliseconds>(now - begin_).count();
}

// The time of a pause never was: all deadlines are as far away after it as they were before. The sound asks the
// clock in a thread of its own, but not while it is paused, which is when the clock stops and goes on.
void Desktop::pause(bool on) {
    if (on == pausedAt_.has_value()) return;
    if (on) {
        if (onPause) onPause(true);
        pausedAt_ = Clock::now();
        return;
    }
    begin_ += Clock::now() - *pausedAt_;
    pausedAt_.reset();
    if (onPause) onPause(false);
}

// Sleeps to the very millisecond: the last one or two without an eye on input, since SDL waits whole ones only and
// wakes up to one late.
void Desktop::sleep(std::optional<Milliseconds> until) {
    if (events_.pending()) return;
    if (screen_.ready() && (!until || pausedAt_)) {
        SDL_WaitEvent(nullptr);
        return;
    }
    const auto end = begin_ + std::chrono::milliseconds(until.value_or(clock() + frame));
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
    if (left.count() > 1 && screen_.ready()) {
        const auto most = std::min<Milliseconds>(left.count() - 1, 1000000);
        if (SDL_WaitEventTimeout(nullptr, static_cast<int>(most)) != 0) return;
    }
    if (end - Clock::now() < std::chrono::milliseconds(3) || !screen_.ready()) std::this_thread::sleep_until(end);
}

Milliseconds Desktop::nextFrame() {
    frameDue_ = std::max(frameDue_ + frame, clock() + 1);
    if (frameDue_ > clock() + frame) frameDue_ = clock() + frame;
    return frameDue_;
}

std::uint64_t Desktop::seed() {
    if (seed_) return *seed_;
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

// --- windows

void Desktop::opened(Window& window) {
    screen_.opened(window);
    events_.windowsChanged();
}

void Desktop::closed(Window& window) {
    screen_.closed(window);
    events_.windowsChanged();
}

void Desktop::reshaped(Window& window) {
    screen_.reshaped(window);
    events_.showPointer();
}

void Desktop::pointerChanged(Window& window) {
    if (&window == screen_.scene().top()) events_.showPointer();
}

// Lets the size of the native window come to rest; gives when it wants to be called again.
std::optional<Milliseconds> Desktop::settle() {
    const auto due = screen_.calmAt();
    if (!due) return std::nullopt;
    const auto now = SDL_GetTicks64();
    if (now < *due) return clock() + static_cast<Milliseconds>(*due - now);
    screen_.calm();
    events_.sizesChanged();
    return std::nullopt;
}

void Desktop::present() {
    presentDue_ = settle();
    if (!screen_.stale()) return;
    const Milliseconds now = clock();
    if (now < lastPresent_ + frame && !pausedAt_) {
        presentDue_ = std::min(presentDue_.value_or(lastPresent_ + frame), lastPresent_ + frame);
        return;
    }
    lastPresent_ = now;
    screen_.show();
}

// --- the rest of the machine

std::string Desktop::clipboard() {
    char* const text = SDL_GetClipboardText();
    std::string copy = text != nullptr ? text : "";
    SDL_free(text);
    return copy;
}

void Desktop::setClipboard(const std::string& text) {
    SDL_SetClipboardText(text.c_str());
}

bool Desktop::start(const std::vector<std::string>& command) {
    return startProcess(command);
}

void Desktop::restart() {
    if (!startProcess(restartCommand_)) std::cerr << "zentrox: can't start " << restartCommand_.front() << '\n';
}

}  // namespace zentrox::sdl
