#include "platform/probe/backend.h"

#include <ostream>

#include "platform/values/keys.h"

namespace zentrox::probe {

namespace {

constexpr Milliseconds frame = 16;
constexpr std::uint8_t held = 128;
constexpr int patience = 50;  // questions without a wait; each stands for some ten thousand instructions

}  // namespace

std::string onOneLine(TextView text) {
    Text out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            out += text[i];
            continue;
        }
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        out += "\\n";
    }
    return toUtf8(out);
}

void ProbeBackend::trace(Milliseconds at, const std::string& line) {
    if (trace_ != nullptr) *trace_ << at - begin_ << ' ' << line << '\n';
}

void ProbeBackend::beginAnew() {
    restartWanted_ = false;
    clockMoved_ = nullptr;
    lastBox_.reset();
    boxExpected = false;
}

std::optional<Input> ProbeBackend::nextInput() {
    asked_ = 0;
    if (handedOver_ || person_ == nullptr) {
        handedOver_ = false;
        return std::nullopt;
    }
    auto input = person_->next();
    handedOver_ = input.has_value();
    if (input && input->kind == Input::Kind::press) input->shift = keys_[key::shift] == held;
    if (input && input->kind == Input::Kind::keyDown) {
        input->shift = keys_[key::shift] == held;
        input->control = keys_[key::control] == held;
    }
    if (input && input->code > 0 && input->code < 256) {
        if (input->kind == Input::Kind::keyDown) keys_[static_cast<std::size_t>(input->code)] = held;
        if (input->kind == Input::Kind::keyUp) keys_[static_cast<std::size_t>(input->code)] = 0;
    }
    return input;
}

void ProbeBackend::sleep(std::optional<Milliseconds> until) {
    if (person_ != nullptr) {
        if (person_->ready()) return;
        const auto due = person_->due();
        if (due && (!until || *due < *until)) until = due;
    }
    if (!until || *until <= now_) return;
    now_ = *until;
    if (clockMoved_) clockMoved_();
}

Milliseconds ProbeBackend::nextFrame() {
    return now_ + frame;
}

bool ProbeBackend::wantsToClose() {
    if (++asked_ == patience && person_ != nullptr) person_->stuck();
    return false;
}

void ProbeBackend::opened(Window& window) {
    if (window.name() != "MsgBox") trace("window " + toUtf8(window.name()) + " open");
}

void ProbeBackend::closed(Window& window) {
    if (window.name() != "MsgBox") trace("window " + toUtf8(window.name()) + " close");
}

void ProbeBackend::messageBoxOpened(const MessageBox& box) {
    lastBox_ = box;
    boxExpected = false;
    trace("box \"" + onOneLine(box.title) + "\" \"" + onOneLine(box.text) + '"');
}

bool ProbeBackend::start(const std::vector<std::string>& command) {
    std::string line;
    for (const std::string& word : command) line += (line.empty() ? "" : " ") + word;
    trace("start \"" + line + '"');
    return true;
}

void ProbeBackend::restart() {
    trace("restart");
    restartWanted_ = true;
}

}  // namespace zentrox::probe
