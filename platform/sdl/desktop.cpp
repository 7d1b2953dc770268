#include "platform/sdl/desktop.h"

#include <algorithm>
#include <iostream>
#include <random>
#include <thread>

#include "platform/machine/system.h"
#include "platform/sdl/keys.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"

namespace zentrox::sdl {

namespace {

constexpr Milliseconds frame = 16;
constexpr double partOfScreen = 0.9;

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

// Copies `part` of a picture into a window's pixels, each pixel as a square of `scale`; `corner` is where the
// picture's own corner stands.
void enlarge(const Bitmap& picture, const Rect& part, SDL_Surface& target, Point corner, int scale) {
    const int width = std::min(part.w, (target.w - corner.x) / scale - part.x);
    for (int y = part.y; y < part.bottom(); ++y) {
        const int top = corner.y + y * scale;
        if (top + scale > target.h || width <= 0) return;
        auto* const first = reinterpret_cast<std::uint32_t*>(static_cast<Uint8*>(target.pixels) +
                                                             static_cast<std::ptrdiff_t>(top) * target.pitch) +
                            corner.x + part.x * scale;
        const std::uint32_t* from = picture.row(y) + part.x;
        std::uint32_t* to = first;
        for (int x = 0; x < width; ++x, ++from)
            for (int i = 0; i < scale; ++i) *to++ = *from;
        for (int i = 1; i < scale; ++i) {
            auto* const below = reinterpret_cast<std::uint32_t*>(reinterpret_cast<Uint8*>(first) +
                                                                 static_cast<std::ptrdiff_t>(i) * target.pitch);
            std::copy(first, first + static_cast<std::ptrdiff_t>(width) * scale, below);
        }
    }
}

// Window managers put a name of their own where there is none.
std::string shownTitle(const Window& window) {
    return window.title().empty() ? " " : toUtf8(window.title());
}

bool plainFormat(const SDL_Surface& surface) {
    return surface.format->format == SDL_PIXELFORMAT_RGB888 || surface.format->format == SDL_PIXELFORMAT_ARGB8888;
}

}  // namespace

Desktop::Desktop(const Files& files, std::vector<std::string> restartCommand)
    : files_(files),
      restartCommand_(std::move(restartCommand)),
      cursors_(std::make_unique<Cursors>(files)) {}

Desktop::~Desktop() {
    cursors_.reset();
    shown_.clear();
    if (videoStarted_) SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

// The plain window surface without acceleration starts faster, takes less memory and costs less than what SDL
// chooses by itself on a machine without a graphics card. A hint set in the environment wins.
void Desktop::startVideo() {
    if (videoStarted_) return;
    SDL_SetHintWithPriority(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_APP_NAME, "Zentrox", SDL_HINT_DEFAULT);
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
        std::cerr << "zentrox: no display: " << SDL_GetError() << '\n';
        throw ProgramEnd{1};
    }
    videoStarted_ = true;
}

// --- time

Milliseconds Desktop::clock() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin_).count();
}

// Sleeps to the very millisecond: the last one or two without an eye on input, since SDL waits whole ones only and
// wakes up to one late.
void Desktop::sleep(std::optional<Milliseconds> until) {
    if (!pending_.empty()) return;
    if (!until && videoStarted_) {
        SDL_WaitEvent(nullptr);
        return;
    }
    const auto end = begin_ + std::chrono::milliseconds(until.value_or(clock() + frame));
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    if (left.count() > 1 && videoStarted_) {
        const auto most = std::min<Milliseconds>(left.count() - 1, 1000000);
        if (SDL_WaitEventTimeout(nullptr, static_cast<int>(most)) != 0) return;
    }
    if (end - std::chrono::steady_clock::now() < std::chrono::milliseconds(3) || !videoStarted_)
        std::this_thread::sleep_until(end);
}

Milliseconds Desktop::nextFrame() {
    frameDue_ = std::max(frameDue_ + frame, clock() + 1);
    if (frameDue_ > clock() + frame) frameDue_ = clock() + frame;
    return frameDue_;
}

std::uint64_t Desktop::seed() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

// --- windows

Desktop::Shown* Desktop::of(const Window& window) {
    const auto hit =
        std::find_if(shown_.begin(), shown_.end(), [&](const Shown& s) { return s.window == &window; });
    return hit == shown_.end() ? nullptr : &*hit;
}

int Desktop::fittingScale(Size client) const {
    SDL_Rect screen{0, 0, 0, 0};
    if (SDL_GetDisplayBounds(0, &screen) != 0) return 1;
    const int across = static_cast<int>(screen.w * partOfScreen) / client.w;
    const int down = static_cast<int>(screen.h * partOfScreen) / client.h;
    return std::max(1, std::min(across, down));
}

Uint32 Desktop::flagsOf(const Window& window) {
    switch (window.frame()) {
        case Frame::sizable: return SDL_WINDOW_RESIZABLE;
        case Frame::thin:
        case Frame::none: return SDL_WINDOW_BORDERLESS;
        case Frame::dialog: return SDL_WINDOW_SKIP_TASKBAR;
        default: return 0;
    }
}

// Centred on the window below; without one, or without a frame to move it by, in the middle of the screen.
void Desktop::place(Shown& shown, const Shown* owner) {
    if (owner == nullptr) return;
    SDL_SetWindowModalFor(shown.native.get(), owner->native.get());
    if (shown.window->frame() == Frame::none) return;
    int x = 0;
    int y = 0;
    Size below;
    Size size;
    SDL_GetWindowPosition(owner->native.get(), &x, &y);
    SDL_GetWindowSize(owner->native.get(), &below.w, &below.h);
    SDL_GetWindowSize(shown.native.get(), &size.w, &size.h);
    SDL_SetWindowPosition(shown.native.get(), x + (below.w - size.w) / 2, y + (below.h - size.h) / 2);
}

void Desktop::opened(Window& window) {
    startVideo();
    Shown shown;
    shown.window = &window;
    const Shown* const owner = active();
    shown.scale = fittingScale(window.client());
    if (owner != nullptr) shown.scale = std::min(shown.scale, owner->windowedScale);
    shown.windowedScale = shown.scale;
    const std::string title = shownTitle(window);
    shown.native.reset(SDL_CreateWindow(title.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                        window.client().w * shown.scale, window.client().h * shown.scale,
                                        flagsOf(window) | SDL_WINDOW_HIDDEN));
    if (!shown.native) {
        std::cerr << "zentrox: no window: " << SDL_GetError() << '\n';
        throw ProgramEnd{1};
    }
    if (window.frame() == Frame::sizable)
        SDL_SetWindowMinimumSize(shown.native.get(), window.minimum.w * shown.scale,
                                 window.minimum.h * shown.scale);
    place(shown, owner);
    SDL_ShowWindow(shown.native.get());
    SDL_RaiseWindow(shown.native.get());
    shown_.push_back(std::move(shown));
    if (fullScreen_ && window.frame() != Frame::dialog) setFullScreen(shown_.back(), true);
    pending_.clear();
    pointerChanged(window);
    SDL_StartTextInput();
}

void Desktop::closed(Window& window) {
    std::erase_if(shown_, [&](const Shown& s) { return s.window == &window; });
    pending_.clear();
    if (Shown* const below = active()) {
        SDL_RaiseWindow(below->native.get());
        below->exposed = true;
        if (below->fullScreen != fullScreen_ && below->window->frame() != Frame::dialog)
            setFullScreen(*below, fullScreen_);
        pointerChanged(*below->window);
    }
}

void Desktop::reshaped(Window& window) {
    Shown* const shown = of(window);
    if (shown == nullptr) return;
    SDL_SetWindowTitle(shown->native.get(), shownTitle(window).c_str());
    shown->exposed = true;
    if (shown->fullScreen) return;
    Size native;
    SDL_GetWindowSize(shown->native.get(), &native.w, &native.h);
    const Size wanted{window.client().w * shown->scale, window.client().h * shown->scale};
    // A window dragged by a person keeps the size that it was given; what is left over at its edges stays black.
    if (native.w / shown->scale != window.client().w || native.h / shown->scale != window.client().h)
        SDL_SetWindowSize(shown->native.get(), wanted.w, wanted.h);
}

void Desktop::pointerChanged(Window& window) {
    Shown* const shown = active();
    if (shown != nullptr && shown->window == &window) cursors_->show(window.pointer(), shown->scale);
}

void Desktop::setFullScreen(Shown& shown, bool on) {
    if (SDL_SetWindowFullscreen(shown.native.get(), on ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0) != 0) return;
    shown.fullScreen = on;
    layOut(shown);
}

// Takes up the size of the native window: a sizable one gets the client area that fits into it, others stand in the
// middle of it.
void Desktop::layOut(Shown& shown) {
    Size native;
    SDL_GetWindowSize(shown.native.get(), &native.w, &native.h);
    const bool sizable = shown.window->frame() == Frame::sizable;
    const Size needed = sizable ? shown.window->minimum : shown.window->client();
    shown.scale =
        shown.fullScreen ? std::max(1, std::min(native.w / needed.w, native.h / needed.h)) : shown.windowedScale;
    shown.exposed = true;
    if (sizable) {
        shown.corner = {0, 0};
        Input input;
        input.kind = Input::Kind::resize;
        input.size = {native.w / shown.scale, native.h / shown.scale};
        if (&shown == active() && input.size != shown.window->client()) pending_.push_back(input);
        return;
    }
    const Size client = shown.window->client();
    shown.corner = {std::max(0, (native.w - client.w * shown.scale) / 2),
                    std::max(0, (native.h - client.h * shown.scale) / 2)};
}

// --- showing

void Desktop::present() {
    presentDue_.reset();
    const bool news =
        std::any_of(shown_.begin(), shown_.end(), [](const Shown& s) { return s.exposed || s.window->stale(); });
    if (!news) return;
    const Milliseconds now = clock();
    if (now < lastPresent_ + frame) {
        presentDue_ = lastPresent_ + frame;
        return;
    }
    lastPresent_ = now;
    for (Shown& shown : shown_) show(shown);
}

void Desktop::show(Shown& shown) {
    const Bitmap& picture = shown.window->compose();
    Rect part = shown.window->takeNews();
    SDL_Surface* const target = SDL_GetWindowSurface(shown.native.get());
    if (target == nullptr) return;
    if (shown.exposed) {
        part = picture.bounds();
        SDL_FillRect(target, nullptr, 0);
    }
    part = intersection(part, picture.bounds());
    if (part.empty()) return;
    if (plainFormat(*target)) {
        enlarge(picture, part, *target, shown.corner, shown.scale);
    } else {
        auto* const pixels = const_cast<std::uint32_t*>(picture.row(0));
        SDL_Surface* const source = SDL_CreateRGBSurfaceWithFormatFrom(
            pixels, picture.width(), picture.height(), 32, picture.width() * 4, SDL_PIXELFORMAT_RGB888);
        SDL_Rect from{part.x, part.y, part.w, part.h};
        SDL_Rect to{shown.corner.x + part.x * shown.scale, shown.corner.y + part.y * shown.scale,
                    part.w * shown.scale, part.h * shown.scale};
        SDL_BlitScaled(source, &from, target, &to);
        SDL_FreeSurface(source);
    }
    const SDL_Rect changed{shown.corner.x + part.x * shown.scale, shown.corner.y + part.y * shown.scale,
                           part.w * shown.scale, part.h * shown.scale};
    if (shown.exposed) {
        SDL_UpdateWindowSurface(shown.native.get());
    } else {
        SDL_UpdateWindowSurfaceRects(shown.native.get(), &changed, 1);
    }
    shown.exposed = false;
}

// --- input

std::optional<Input> Desktop::nextInput() {
    SDL_Event event;
    while (pending_.empty() && videoStarted_ && SDL_PollEvent(&event) != 0) translate(event);
    if (pending_.empty()) return std::nullopt;
    const Input input = pending_.front();
    pending_.pop_front();
    return input;
}

Point Desktop::inGame(const Shown& shown, int x, int y) const {
    const auto down = [&](int v) { return v >= 0 ? v / shown.scale : -((shown.scale - 1 - v) / shown.scale); };
    return {down(x - shown.corner.x), down(y - shown.corner.y)};
}

void Desktop::translate(const SDL_Event& event) {
    Shown* const top = active();
    if (event.type == SDL_QUIT) throw ProgramEnd{};
    if (event.type == SDL_WINDOWEVENT) return translateWindow(event.window);
    if (top == nullptr) return;
    const Uint32 id = SDL_GetWindowID(top->native.get());
    Input input;
    switch (event.type) {
        case SDL_MOUSEMOTION:
            if (event.motion.windowID != id) return;
            input.kind = Input::Kind::move;
            input.at = inGame(*top, event.motion.x, event.motion.y);
            input.button = heldButton(event.motion.state);
            break;
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            if (event.button.windowID != id || event.button.button > SDL_BUTTON_RIGHT) return;
            input.kind = event.type == SDL_MOUSEBUTTONDOWN ? Input::Kind::press : Input::Kind::release;
            input.at = inGame(*top, event.button.x, event.button.y);
            input.button = buttonOf(event.button.button);
            input.clicks = event.button.clicks % 2 == 0 ? 2 : 1;
            break;
        case SDL_MOUSEWHEEL: {
            if (event.wheel.windowID != id) return;
            input.kind = Input::Kind::wheel;
            int x = 0;
            int y = 0;
            SDL_GetMouseState(&x, &y);
            input.at = inGame(*top, x, y);
            input.code = event.wheel.y;
            break;
        }
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            if (event.key.windowID == id) translateKey(event.key);
            return;
        case SDL_TEXTINPUT:
            if (event.text.windowID == id) translateText(event.text.text);
            return;
        default: return;
    }
    pending_.push_back(input);
}

void Desktop::translateWindow(const SDL_WindowEvent& event) {
    const auto hit = std::find_if(shown_.begin(), shown_.end(), [&](const Shown& s) {
        return SDL_GetWindowID(s.native.get()) == event.windowID;
    });
    if (hit == shown_.end()) return;
    switch (event.event) {
        case SDL_WINDOWEVENT_CLOSE: {
            Input input;
            input.kind = Input::Kind::close;
            if (&*hit == active()) pending_.push_back(input);
            return;
        }
        case SDL_WINDOWEVENT_SIZE_CHANGED: return layOut(*hit);
        case SDL_WINDOWEVENT_EXPOSED:
        case SDL_WINDOWEVENT_SHOWN:
        case SDL_WINDOWEVENT_RESTORED: hit->exposed = true; return;
        // A click on a window that waits for another one brings that other one to the front.
        case SDL_WINDOWEVENT_FOCUS_GAINED:
            if (&*hit != active()) SDL_RaiseWindow(active()->native.get());
            return;
        default: return;
    }
}

void Desktop::translateKey(const SDL_KeyboardEvent& event) {
    const bool down = event.type == SDL_KEYDOWN;
    const bool altEnter = event.keysym.sym == SDLK_RETURN && (event.keysym.mod & KMOD_ALT) != 0;
    if (event.keysym.sym == SDLK_F11 || altEnter) {
        if (!down || event.repeat != 0) return;
        fullScreen_ = !fullScreen_;
        if (active()->window->frame() != Frame::dialog) setFullScreen(*active(), fullScreen_);
        return pointerChanged(*active()->window);
    }
    const int code = virtualCode(event.keysym);
    Input input;
    input.kind = down ? Input::Kind::keyDown : Input::Kind::keyUp;
    input.code = code;
    input.repeat = event.repeat != 0;
    input.shift = (event.keysym.mod & KMOD_SHIFT) != 0;
    input.control = (event.keysym.mod & KMOD_CTRL) != 0;
    if (code != 0) pending_.push_back(input);
    const char character = down ? controlCharacter(event.keysym) : '\0';
    if (character == 0) return;
    Input press;
    press.kind = Input::Kind::keyPress;
    press.character = character;
    pending_.push_back(press);
}

void Desktop::translateText(const char* utf8) {
    std::string_view rest(utf8);
    while (!rest.empty()) {
        const auto codePoint = takeCodePoint(rest);
        const auto character = codePoint ? fromUnicode(*codePoint) : std::nullopt;
        if (!character) continue;
        Input press;
        press.kind = Input::Kind::keyPress;
        press.character = *character;
        pending_.push_back(press);
    }
}

std::array<std::uint8_t, 256> Desktop::keys() {
    return heldKeys();
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
