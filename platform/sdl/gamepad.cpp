#include "platform/sdl/gamepad.h"

#include "platform/values/keys.h"

namespace zentrox::sdl {

namespace {

struct PadKey {
    SDL_GameControllerButton button;
    int code;
};

// What the keys do is the business of who asks for them: use, look, take in hand, the bag.
constexpr std::array padKeys{
    PadKey{SDL_CONTROLLER_BUTTON_A, key::enter},         PadKey{SDL_CONTROLLER_BUTTON_B, 'A'},
    PadKey{SDL_CONTROLLER_BUTTON_X, key::space},         PadKey{SDL_CONTROLLER_BUTTON_Y, 'H'},
    PadKey{SDL_CONTROLLER_BUTTON_BACK, key::escape},     PadKey{SDL_CONTROLLER_BUTTON_START, key::f10},
    PadKey{SDL_CONTROLLER_BUTTON_LEFTSHOULDER, key::f6}, PadKey{SDL_CONTROLLER_BUTTON_RIGHTSHOULDER, key::tab},
    PadKey{SDL_CONTROLLER_BUTTON_DPAD_UP, key::up},      PadKey{SDL_CONTROLLER_BUTTON_DPAD_DOWN, key::down},
    PadKey{SDL_CONTROLLER_BUTTON_DPAD_LEFT, key::left},  PadKey{SDL_CONTROLLER_BUTTON_DPAD_RIGHT, key::right},
};

// How far the stick has to be pushed, and let back, of 32,767.
constexpr int pushed = 18'000;
constexpr int letBack = 12'000;

}  // namespace

void GamePad::use(bool on) {
    if (on == used_) return;
    used_ = on;
    if (on) {
        SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
        return;
    }
    letGo();
    pads_.clear();
    SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
}

bool GamePad::take(const SDL_Event& event) {
    switch (event.type) {
        case SDL_CONTROLLERDEVICEADDED:
            pads_.emplace_back(SDL_GameControllerOpen(event.cdevice.which));
            return true;
        case SDL_CONTROLLERDEVICEREMOVED: letGo(); return true;
        case SDL_CONTROLLERAXISMOTION: takeAxis(event.caxis); return true;
        case SDL_CONTROLLERBUTTONDOWN:
        case SDL_CONTROLLERBUTTONUP:
            for (const PadKey& known : padKeys)
                if (known.button == event.cbutton.button) press(known.code, event.type == SDL_CONTROLLERBUTTONDOWN);
            return true;
        default: return false;
    }
}

void GamePad::takeAxis(const SDL_ControllerAxisEvent& event) {
    const bool across = event.axis == SDL_CONTROLLER_AXIS_LEFTX;
    if (!across && event.axis != SDL_CONTROLLER_AXIS_LEFTY) return;
    const auto side = [&](int code, int value) {
        if (value > pushed) press(code, true);
        if (value < letBack) press(code, false);
    };
    side(across ? key::right : key::down, event.value);
    side(across ? key::left : key::up, -event.value);
}

void GamePad::press(int code, bool down) {
    bool& held = held_[static_cast<std::size_t>(code)];
    if (down == held) return;
    held = down;
    tell_(code, down);
}

void GamePad::letGo() {
    for (int code = 0; code < static_cast<int>(held_.size()); ++code) press(code, false);
}

void GamePad::addTo(KeyStates& keys) const {
    for (std::size_t i = 0; i < held_.size(); ++i)
        if (held_[i]) keys[i] = 128;
}

}  // namespace zentrox::sdl
