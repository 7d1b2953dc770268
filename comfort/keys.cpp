#include "comfort/keys.h"

#include <utility>

namespace zentrox {

bool ComfortKeys::take(const Input& input) {
    switch (input.kind) {
        case Input::Kind::keyDown: return press(input);
        case Input::Kind::keyUp: return release(input);
        case Input::Kind::keyPress: return held_.has_value();
        default: return false;
    }
}

bool ComfortKeys::press(const Input& input) {
    if (input.repeat && held_ && keys_[*held_].code == input.code) return true;
    for (std::size_t i = 0; i < keys_.size(); ++i) {
        const ComfortKey& key = keys_[i];
        if (key.code != input.code || key.control != input.control || (busy_ && !key.nests)) continue;
        if (key.available && !key.available()) continue;
        held_ = i;
        const auto down = key.down;
        if (down) down();
        return true;
    }
    return false;
}

bool ComfortKeys::release(const Input& input) {
    if (!held_ || keys_[*held_].code != input.code) return false;
    const auto up = keys_[*std::exchange(held_, std::nullopt)].up;
    if (up) up();
    return true;
}

void ComfortKeys::during(const std::function<void()>& work) {
    struct Back {
        bool& busy;
        bool before;
        ~Back() { busy = before; }
    };
    const Back back{busy_, std::exchange(busy_, true)};
    work();
}

}  // namespace zentrox
