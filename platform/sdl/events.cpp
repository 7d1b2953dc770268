#include "platform/sdl/events.h"

#include <algorithm>
#include <utility>

#include "platform/values/error.h"
#include "platform/values/keys.h"

namespace zentrox::sdl {

namespace {

Button buttonOf(Uint8 button) {
    switch (button) {
        case SDL_BUTTON_LEFT: return Button::left;
        case SDL_BUTTON_RIGHT: return Button::right;
        default: return Button::middle;
    }
}

Button heldButton(Uint32 state) {
    if ((state & SDL_BUTTON_LMASK) != 0) return Button::left;
    if ((state & SDL_BUTTON_RMASK) != 0) return Button::right;
    return (state & SDL_BUTTON_MMASK) != 0 ? Button::middle : Button::none;
}

constexpr int dragBegins = 12;     // units of the window system that a finger has to move
constexpr Uint32 longPress = 500;  // milliseconds

bool gameButton(Uint8 button) {
    return button <= SDL_BUTTON_RIGHT;
}

Enlarging after(Enlarging how) {
    switch (how) {
        case Enlarging::whole: return Enlarging::sharp;
        case Enlarging::sharp: return Enlarging::smooth;
        default: return Enlarging::whole;
    }
}

}  // namespace

std::optional<Input> Events::next() {
    SDL_Event event;
    while (pending_.empty() && screen_.ready() && SDL_PollEvent(&event) != 0) take(event);
    if (pending_.empty()) return std::nullopt;
    const Input input = pending_.front();
    pending_.pop_front();
    return input;
}

bool Events::closeWanted() {
    SDL_Event event;
    while (screen_.ready() && SDL_PollEvent(&event) != 0) take(event);
    return std::any_of(pending_.begin(), pending_.end(),
                       [](const Input& input) { return input.kind == Input::Kind::close; });
}

// What is pending stays: the queue knows what of it was meant for another window.
void Events::windowsChanged() {
    clicksBefore_ = clicks_;
    grip_.reset();
    closeHeld_ = false;
    taps_.forget();
    sizesChanged();
}

void Events::sizesChanged() {
    std::erase_if(pending_, [](const Input& input) { return input.kind == Input::Kind::resize; });
    if (const auto size = screen_.resizeWanted()) pending_.push_back({.kind = Input::Kind::resize, .size = *size});
    Point at;
    SDL_GetMouseState(&at.x, &at.y);
    overClient_ = screen_.placeAt(at) == Place::client;
    showPointer();
}

void Events::showPointer() {
    if (screen_.scene().top() == nullptr) return;
    const bool own = overClient_ || told_ != 0;
    cursors_.show(own ? screen_.scene().top()->pointer() : Pointer{},
                  std::max(1, static_cast<int>(screen_.scene().scale())));
}

void Events::take(const SDL_Event& event) {
    if (event.type == SDL_QUIT) throw ProgramEnd{};
    if (foreign && foreign(event)) return;
    if (event.type == SDL_WINDOWEVENT) return takeWindow(event.window);
    if (screen_.scene().top() == nullptr || pad_.take(event)) return;
    switch (event.type) {
        case SDL_FINGERDOWN:
        case SDL_FINGERMOTION:
        case SDL_FINGERUP: return takeFinger(event.tfinger);
        case SDL_MOUSEMOTION: return takeMove(event.motion);
        case SDL_MOUSEBUTTONDOWN: return takeDown(event.button);
        case SDL_MOUSEBUTTONUP: return takeUp(event.button);
        case SDL_MOUSEWHEEL: return takeWheel(event.wheel);
        case SDL_KEYDOWN:
        case SDL_KEYUP: return takeKey(event.key);
        case SDL_TEXTINPUT: return takeText(event.text.text);
        default: return;
    }
}

void Events::takeWindow(const SDL_WindowEvent& event) {
    switch (event.event) {
        case SDL_WINDOWEVENT_CLOSE:
            if (screen_.scene().top() != nullptr) pending_.push_back({.kind = Input::Kind::close});
            return;
        case SDL_WINDOWEVENT_SIZE_CHANGED: screen_.sizeChanged(); return sizesChanged();
        case SDL_WINDOWEVENT_MINIMIZED: minimised_ = true; return tellStanding();
        case SDL_WINDOWEVENT_FOCUS_LOST: away_ = true; return tellStanding();
        case SDL_WINDOWEVENT_FOCUS_GAINED: away_ = false; [[fallthrough]];
        case SDL_WINDOWEVENT_RESTORED:
        case SDL_WINDOWEVENT_MAXIMIZED:
        case SDL_WINDOWEVENT_SHOWN:
        case SDL_WINDOWEVENT_EXPOSED:
            minimised_ = false;
            tellStanding();
            return screen_.expose();
        default: return;
    }
}

void Events::tellStanding() {
    if (onStanding) onStanding(minimised_ || (away_ && pausesAway_));
}

// --- the pointer

void Events::takeMove(const SDL_MouseMotionEvent& event) {
    const Point at{event.x, event.y};
    releaseLost(event.state, at);
    if (grip_) return screen_.dragTop(at, *grip_);
    const Place place = screen_.placeAt(at);
    if (closeHeld_) return screen_.pressCloseBox(place == Place::closeBox);
    if (overClient_ != (place == Place::client)) {
        overClient_ = !overClient_;
        showPointer();
    }
    if (!overClient_ && told_ == 0) return;
    pending_.push_back({.kind = Input::Kind::move, .at = screen_.inTop(at), .button = heldButton(event.state)});
}

void Events::takeDown(const SDL_MouseButtonEvent& event) {
    if (!gameButton(event.button) || grip_ || closeHeld_) return;
    const Point at{event.x, event.y};
    const Place place = screen_.placeAt(at);
    const bool left = event.button == SDL_BUTTON_LEFT;
    if (place == Place::title && left) grip_ = screen_.inTop(at);
    if (place == Place::closeBox && left) {
        closeHeld_ = true;
        screen_.pressCloseBox(true);
    }
    if (place != Place::client) return;
    clicks_ = event.clicks;
    if (clicks_ <= clicksBefore_) clicksBefore_ = 0;
    const int clicks = clicks_ - clicksBefore_;
    told_ |= SDL_BUTTON(event.button);
    pending_.push_back({.kind = Input::Kind::press,
                        .at = screen_.inTop(at),
                        .button = buttonOf(event.button),
                        .clicks = clicks % 2 == 0 ? 2 : 1,
                        .shift = (SDL_GetModState() & KMOD_SHIFT) != 0});
}

void Events::takeUp(const SDL_MouseButtonEvent& event) {
    const Point at{event.x, event.y};
    if (!gameButton(event.button)) return;
    if ((told_ & SDL_BUTTON(event.button)) != 0) return release(buttonOf(event.button), at);
    if (event.button != SDL_BUTTON_LEFT) return;
    grip_.reset();
    if (!closeHeld_) return;
    closeHeld_ = false;
    screen_.pressCloseBox(false);
    if (screen_.placeAt(at) == Place::closeBox) pending_.push_back({.kind = Input::Kind::close});
}

void Events::release(Button button, Point at) {
    for (const int number : {SDL_BUTTON_LEFT, SDL_BUTTON_MIDDLE, SDL_BUTTON_RIGHT})
        if (buttonOf(static_cast<Uint8>(number)) == button) told_ &= ~static_cast<Uint32>(SDL_BUTTON(number));
    pending_.push_back({.kind = Input::Kind::release, .at = screen_.inTop(at), .button = button});
    showPointer();
}

// A window manager can take the pointer away in the middle of a press; its end is then seen from what comes next.
void Events::releaseLost(Uint32 held, Point at) {
    for (const int number : {SDL_BUTTON_LEFT, SDL_BUTTON_MIDDLE, SDL_BUTTON_RIGHT})
        if ((told_ & ~held & SDL_BUTTON(number)) != 0) release(buttonOf(static_cast<Uint8>(number)), at);
    if ((held & SDL_BUTTON_LMASK) != 0) return;
    grip_.reset();
    if (closeHeld_) screen_.pressCloseBox(false);
    closeHeld_ = false;
}

void Events::takeWheel(const SDL_MouseWheelEvent& event) {
    Point at;
    SDL_GetMouseState(&at.x, &at.y);
    if (screen_.placeAt(at) != Place::client) return;
    pending_.push_back({.kind = Input::Kind::wheel, .at = screen_.inTop(at), .code = event.y});
}

// --- fingers

void Events::useTouch(bool on) {
    touches_ = on;
    SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, on ? "0" : "1");
}

void Events::fingerMove(Point at, Uint32 held) {
    SDL_MouseMotionEvent event{};
    event.state = held;
    event.x = at.x;
    event.y = at.y;
    takeMove(event);
}

void Events::fingerButton(Uint32 type, Uint8 button, Point at) {
    SDL_MouseButtonEvent event{};
    event.button = button;
    event.clicks = 1;
    event.x = at.x;
    event.y = at.y;
    type == SDL_MOUSEBUTTONDOWN ? takeDown(event) : takeUp(event);
}

// The first finger is the pointer; what others do meanwhile is left out.
void Events::takeFinger(const SDL_TouchFingerEvent& event) {
    if (!touches_) return;
    const Size window = screen_.nativePoints();
    const Point at{static_cast<int>(event.x * static_cast<float>(window.w)),
                   static_cast<int>(event.y * static_cast<float>(window.h))};
    if (event.type == SDL_FINGERDOWN && !finger_) {
        finger_ = Finger{event.fingerId, at, event.timestamp};
        return fingerMove(at, 0);
    }
    if (!finger_ || finger_->id != event.fingerId) return;
    const Point way = at - finger_->at;
    if (!finger_->drags && event.type == SDL_FINGERMOTION &&
        way.x * way.x + way.y * way.y > dragBegins * dragBegins) {
        finger_->drags = true;
        fingerButton(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, finger_->at);
    }
    if (event.type == SDL_FINGERMOTION) {
        if (finger_->drags) fingerMove(at, SDL_BUTTON_LMASK);
        return;
    }
    const Finger finger = *std::exchange(finger_, std::nullopt);
    if (finger.drags) return fingerButton(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, at);
    const Uint8 button = event.timestamp - finger.since >= longPress ? SDL_BUTTON_RIGHT : SDL_BUTTON_LEFT;
    fingerButton(SDL_MOUSEBUTTONDOWN, button, finger.at);
    fingerButton(SDL_MOUSEBUTTONUP, button, finger.at);
}

// --- the keyboard

// A pad's key is a key, with the character that it would type.
void Events::takePadKey(int code, bool down) {
    pending_.push_back({.kind = down ? Input::Kind::keyDown : Input::Kind::keyUp, .code = code});
    if (down) taps_.note(code, SDL_GetTicks64());
    const bool types = code == key::enter || code == key::space || code == key::tab || code == key::escape;
    if (down && types) pressCharacter(static_cast<char>(code));
}

// F11 and Alt+Enter: full screen; F8: the next way of enlarging. The game never sees them.
bool Events::takeOwnKey(const SDL_KeyboardEvent& event) {
    const SDL_Keycode sym = event.keysym.sym;
    const bool altEnter = sym == SDLK_RETURN && (event.keysym.mod & KMOD_ALT) != 0;
    if (sym != SDLK_F11 && sym != SDLK_F8 && !altEnter) return false;
    if (event.type != SDL_KEYDOWN || event.repeat != 0) return true;
    // Nor is Alt a key that was pressed alone.
    if (altEnter) pending_.push_back({.kind = Input::Kind::keyUp, .code = key::alt, .lost = true});
    if (sym == SDLK_F8)
        screen_.setEnlarging(after(screen_.enlarging()));
    else
        screen_.setFullScreen(!screen_.fullScreen());
    sizesChanged();
    return true;
}

void Events::takeKey(const SDL_KeyboardEvent& event) {
    if (takeOwnKey(event)) return;
    const bool down = event.type == SDL_KEYDOWN;
    Input input;
    input.kind = down ? Input::Kind::keyDown : Input::Kind::keyUp;
    input.code = virtualCode(event.keysym);
    input.repeat = event.repeat != 0;
    input.lost = !down && SDL_GetKeyboardFocus() == nullptr;
    input.shift = (event.keysym.mod & KMOD_SHIFT) != 0;
    input.control = (event.keysym.mod & KMOD_CTRL) != 0;
    if (down && !input.repeat) taps_.note(input.code, SDL_GetTicks64());
    if (input.code != 0) pending_.push_back(input);
    if (const char character = down ? controlCharacter(event.keysym) : '\0') pressCharacter(character);
}

void Events::takeText(const char* utf8) {
    std::string_view rest(utf8);
    while (!rest.empty()) {
        const auto codePoint = takeCodePoint(rest);
        if (const auto character = codePoint ? fromUnicode(*codePoint) : std::nullopt) pressCharacter(*character);
    }
}

void Events::pressCharacter(char character) {
    pending_.push_back({.kind = Input::Kind::keyPress, .character = character});
}

std::array<std::uint8_t, 256> Events::keys() {
    auto held = heldKeys();
    pad_.addTo(held);
    taps_.addTo(held, SDL_GetTicks64());
    return held;
}

}  // namespace zentrox::sdl
