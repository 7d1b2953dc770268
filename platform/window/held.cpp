#include "platform/window/held.h"

namespace zentrox {

template <class Name>
bool HeldInputs::disown(std::map<Name, Held>& held, Mark since) {
    bool any = false;
    for (auto& [name, one] : held) {
        if (one.begun <= since || one.nobodys) continue;
        one.nobodys = true;
        any = true;
    }
    return any;
}

HeldInputs::Lost HeldInputs::disown(Mark since) {
    return {disown(buttons_, since), disown(keys_, since)};
}

bool HeldInputs::release(Button button) {
    const auto hit = buttons_.find(button);
    if (hit == buttons_.end()) return false;
    const bool belongs = !hit->second.nobodys;
    buttons_.erase(hit);
    return belongs;
}

Button HeldInputs::owned(Button button) const {
    const auto hit = buttons_.find(button);
    return hit != buttons_.end() && !hit->second.nobodys ? button : Button::none;
}

HeldInputs::Key HeldInputs::keyDown(int code, bool repeat) {
    if (code == 0) {
        typing_.reset();
        return repeat ? Key::repeat : Key::first;
    }
    typing_ = code;
    const auto [hit, first] = keys_.try_emplace(code, Held{begun_ + 1, repeat});
    if (first) ++begun_;
    if (hit->second.nobodys) return Key::nobodys;
    return first ? Key::first : Key::repeat;
}

bool HeldInputs::keyUp(int code) {
    if (typing_ == code) typing_.reset();
    const auto hit = keys_.find(code);
    if (hit == keys_.end()) return code == 0;
    const bool belongs = !hit->second.nobodys;
    keys_.erase(hit);
    return belongs;
}

bool HeldInputs::characterBelongs() const {
    if (!typing_) return true;
    const auto hit = keys_.find(*typing_);
    return hit == keys_.end() || !hit->second.nobodys;
}

}  // namespace zentrox
