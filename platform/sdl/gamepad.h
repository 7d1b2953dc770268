// A game pad as a keyboard: each of its buttons is a key.
#pragma once

#include <SDL.h>

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "platform/sdl/keys.h"

namespace zentrox::sdl {

class GamePad {
public:
    // Told of each key that goes down or up, by its virtual code.
    explicit GamePad(std::function<void(int code, bool down)> tell) : tell_(std::move(tell)) {}

    // Looks for pads, or leaves them alone, which is so at first.
    void use(bool on);
    // True if the event was one of a pad.
    bool take(const SDL_Event& event);
    void addTo(KeyStates& keys) const;

private:
    struct End {
        void operator()(SDL_GameController* pad) const { SDL_GameControllerClose(pad); }
    };

    void takeAxis(const SDL_ControllerAxisEvent& event);
    void press(int code, bool down);
    void letGo();

    std::function<void(int, bool)> tell_;
    std::vector<std::unique_ptr<SDL_GameController, End>> pads_;
    std::array<bool, 256> held_{};
    bool used_ = false;
};

}  // namespace zentrox::sdl
