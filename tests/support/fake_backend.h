// A machine for tests: its clock jumps to the next deadline, its input is a script, its clipboard a string.
#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>

#include "platform/values/keys.h"
#include "platform/window/backend.h"
#include "platform/window/messagebox.h"
#include "platform/window/window.h"

namespace zentrox::test {

class FakeBackend : public Backend {
public:
    Milliseconds now = 0;
    std::string clip;  // UTF-8
    bool startWorks = true;
    std::vector<std::vector<std::string>> started;
    std::vector<MessageBox> boxes;
    std::vector<Text> opens;  // names of the windows opened, in order
    int restarts = 0;
    int presents = 0;
    std::function<void()> onPresent;
    int sleeps = 0;

    // --- the script: each of these is done once the one before is, in a turn of its own
    void input(const Input& input) {
        script_.push_back({now_(), [input] { return std::optional(input); }});
    }
    // Runs a piece of the test, for a look at what is on the screen.
    void then(std::function<void()> look) {
        script_.push_back({now_(), [look = std::move(look)]() -> std::optional<Input> {
                               look();
                               return std::nullopt;
                           }});
    }
    // The same at a time of the clock.
    void schedule(Milliseconds at, std::function<void()> look) {
        scripted_ = at;
        then(std::move(look));
    }
    // Lets time pass before what follows.
    void wait(Milliseconds ms) { scripted_ = now_() + ms; }

    void move(Point at, Button held = Button::none) {
        input({.kind = Input::Kind::move, .at = at, .button = held});
    }
    void press(Point at, int clicks = 1, Button button = Button::left) {
        input({.kind = Input::Kind::press, .at = at, .button = button, .clicks = clicks});
    }
    void release(Point at, Button button = Button::left) {
        input({.kind = Input::Kind::release, .at = at, .button = button});
    }
    void click(Point at) {
        move(at);
        press(at);
        release(at);
    }
    void doubleClick(Point at) {
        click(at);
        press(at, 2);
        release(at);
    }
    void wheel(Point at, int lines) { input({.kind = Input::Kind::wheel, .at = at, .code = lines}); }
    void key(int code, bool shift = false, bool control = false) {
        input({.kind = Input::Kind::keyDown, .code = code, .shift = shift, .control = control});
        input({.kind = Input::Kind::keyUp, .code = code});
    }
    // Each character as a key press alone, which is what fields listen to.
    void type(TextView text) {
        for (const char c : text) input({.kind = Input::Kind::keyPress, .character = c});
    }
    void closeBox() { input({.kind = Input::Kind::close}); }
    bool done() const { return script_.empty(); }

    // --- the machine
    Milliseconds clock() override { return now; }
    std::optional<Input> nextInput() override {
        while (!script_.empty() && script_.front().at <= now) {
            const auto act = std::move(script_.front().act);
            script_.pop_front();
            if (auto given = act()) {
                if (given->kind == Input::Kind::press) given->shift = held_[key::shift] != 0;
                hold(*given);
                return given;
            }
        }
        return std::nullopt;
    }
    void sleep(std::optional<Milliseconds> until) override {
        ++sleeps;
        if (!script_.empty() && (!until || script_.front().at < *until)) until = script_.front().at;
        if (!until) throw std::logic_error("waits for ever");
        if (*until > now) now = *until;
    }
    Milliseconds nextFrame() override { return now + 16; }
    void opened(Window& window) override { opens.push_back(window.name()); }
    void closed(Window& /*window*/) override {}
    void reshaped(Window& /*window*/) override {}
    void pointerChanged(Window& /*window*/) override {}
    void present() override {
        ++presents;
        if (onPresent) onPresent();
    }
    void messageBoxOpened(const MessageBox& box) override { boxes.push_back(box); }
    std::array<std::uint8_t, 256> keys() override { return held_; }
    std::string clipboard() override { return clip; }
    void setClipboard(const std::string& text) override { clip = text; }
    std::uint64_t seed() override { return 1; }
    bool start(const std::vector<std::string>& command) override {
        started.push_back(command);
        return startWorks;
    }
    void restart() override { ++restarts; }

private:
    struct Step {
        Milliseconds at;
        std::function<std::optional<Input>()> act;
    };

    Milliseconds now_() const { return now > scripted_ ? now : scripted_; }
    void hold(const Input& input) {
        if (input.code <= 0 || input.code >= 256) return;
        if (input.kind == Input::Kind::keyDown) held_[static_cast<std::size_t>(input.code)] = 128;
        if (input.kind == Input::Kind::keyUp) held_[static_cast<std::size_t>(input.code)] = 0;
    }

    std::deque<Step> script_;
    Milliseconds scripted_ = 0;  // when what is scripted next is done
    std::array<std::uint8_t, 256> held_{};
};

}  // namespace zentrox::test
