#include "platform/sdl/screen.h"

#include <algorithm>
#include <cmath>
#include <csignal>
#include <iostream>
#include <utility>

#include "platform/sdl/icon.h"
#include "platform/values/error.h"

namespace zentrox::sdl {

namespace {

constexpr double partOfScreen = 0.9;
constexpr Size roomSize{640, 480};  // a small window that stands alone is not enlarged more than a room would be
constexpr const char* program = "Zentrox";
constexpr Uint64 patience = 300;  // milliseconds until a window manager has followed

// A terminal or a session that goes ends the program like any other wish that it end: SDL knows the signal for that
// one. Who has asked that it be ignored is heard.
void endOnHangUp() {
    struct sigaction action {};
    if (sigaction(SIGHUP, nullptr, &action) != 0 || action.sa_handler != SIG_DFL) return;
    action.sa_handler = [](int) { static_cast<void>(std::raise(SIGTERM)); };
    sigaction(SIGHUP, &action, nullptr);
}

// The plain window surface without acceleration starts faster, takes less memory and costs less than what SDL
// chooses by itself on a machine without a graphics card. A hint set in the environment wins. SDL keeps its hints
// without a lock, and the thread of the sound reads them: they have to stand before it runs.
void setHints() {
    SDL_SetHintWithPriority(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_APP_NAME, program, SDL_HINT_DEFAULT);
    SDL_setenv("SDL_VIDEO_X11_WMCLASS", "zentrox", 0);
}

void startVideo() {
    // Without a display SDL takes a driver that shows nothing; only who names it can want that.
    const bool works = SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
    const std::string_view driver = works ? SDL_GetCurrentVideoDriver() : "";
    if (works && (driver != "offscreen" || SDL_getenv("SDL_VIDEODRIVER") != nullptr)) return endOnHangUp();
    std::cerr << "zentrox: no display" << (works ? "" : ": ") << (works ? "" : SDL_GetError()) << '\n';
    throw ProgramEnd{1};
}

// Window managers put a name of their own where there is none.
std::string nativeTitle(const Window& window) {
    return window.title().empty() ? program : toUtf8(window.title());
}

Size scaled(Size size, double by) {
    return {static_cast<int>(std::lround(size.w * by)), static_cast<int>(std::lround(size.h * by))};
}

bool plainFormat(const SDL_Surface& surface) {
    return surface.format->format == SDL_PIXELFORMAT_RGB888 || surface.format->format == SDL_PIXELFORMAT_ARGB8888;
}

}  // namespace

Screen::Screen() {
    setHints();
}

// The window system takes the native window back with the process. Destroyed before that, it could still be the
// target of an event that SDL sends to wake itself over a connection of its own; the answer to that is an error,
// and the answer to the error the end of the process with a bad status.
Screen::~Screen() {
    static_cast<void>(native_.release());
}

// --- the native window

double Screen::windowedScale(const Window& window) const {
    SDL_Rect screen{0, 0, 0, 0};
    const int display = native_ ? std::max(0, SDL_GetWindowDisplayIndex(native_.get())) : 0;
    if (SDL_GetDisplayBounds(display, &screen) != 0) return 1;
    Size client = window.client();
    if (window.frame() == Frame::dialog) client = {std::max(client.w, roomSize.w), std::max(client.h, roomSize.h)};
    const Size most{static_cast<int>(screen.w * partOfScreen), static_cast<int>(screen.h * partOfScreen)};
    return std::max(1.0, fittingScale(client, most, enlarging_));
}

void Screen::create(Window& window) {
    startVideo();
    windowedScale_ = windowedScale(window);
    const Size size = scaled(window.client(), windowedScale_);
    native_.reset(SDL_CreateWindow(nativeTitle(window).c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                   size.w, size.h, SDL_WINDOW_HIDDEN | SDL_WINDOW_ALLOW_HIGHDPI));
    if (!native_) {
        std::cerr << "zentrox: no window: " << SDL_GetError() << '\n';
        throw ProgramEnd{1};
    }
    setIcon(*native_);
    shape();
    SDL_ShowWindow(native_.get());
    if (fullScreen_) SDL_SetWindowFullscreen(native_.get(), SDL_WINDOW_FULLSCREEN_DESKTOP);
    measure();
    baseSize_ = scaled(window.client(), windowedScale_ * density_);
    SDL_StartTextInput();
}

// The bottommost window is another one now.
void Screen::takeOver(Window& window) {
    windowedScale_ = windowedScale(window);
    baseSize_ = scaled(window.client(), windowedScale_ * density_);
    stretchedSize_ = {};
    if (!fullScreen_ && maximised()) SDL_RestoreWindow(native_.get());
    shape();
    settle();
    const int display = std::max(0, SDL_GetWindowDisplayIndex(native_.get()));
    if (!fullScreen_)
        SDL_SetWindowPosition(native_.get(), static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(display)),
                              static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(display)));
    measure();
}

// Title and manners of the bottommost window. In full screen the manners have to wait.
void Screen::shape() {
    const Window& base = *scene_.base();
    SDL_SetWindowTitle(native_.get(), nativeTitle(base).c_str());
    if (fullScreen_) return;
    const bool sizable = base.frame() == Frame::sizable;
    const Size least = sizable ? scaled(base.minimum, enlarging_ == Enlarging::whole ? windowedScale_ : 1) : Size{};
    if (least == least_) return;
    least_ = least;
    SDL_SetWindowMinimumSize(native_.get(), std::max(least.w, 1), std::max(least.h, 1));
    SDL_SetWindowResizable(native_.get(), sizable ? SDL_TRUE : SDL_FALSE);
}

Size Screen::nativePoints() const {
    Size points;
    if (native_) SDL_GetWindowSize(native_.get(), &points.w, &points.h);
    return points;
}

void Screen::measure() {
    Size points;
    SDL_GetWindowSize(native_.get(), &points.w, &points.h);
    SDL_GetWindowSizeInPixels(native_.get(), &size_.w, &size_.h);
    density_ = points.w > 0 ? static_cast<double>(size_.w) / points.w : 1;
}

// As large as the bottommost window has it, and larger where another window would not fit at the same scale; unless
// the screen is too small for that.
Size Screen::wantedNative() const {
    const std::vector<Tenant> all = scene_.tenants();
    const double scale = baseScale(baseGround(), all.front());
    const Size need = needed(all);
    const Size grown{std::max(baseSize_.w, static_cast<int>(std::ceil(need.w * scale - 1e-6))),
                     std::max(baseSize_.h, static_cast<int>(std::ceil(need.h * scale - 1e-6)))};
    if (grown == baseSize_) return grown;
    SDL_Rect screen{0, 0, 0, 0};
    if (SDL_GetDisplayUsableBounds(std::max(0, SDL_GetWindowDisplayIndex(native_.get())), &screen) != 0)
        return baseSize_;
    int top = 0, left = 0, bottom = 0, right = 0;
    SDL_GetWindowBordersSize(native_.get(), &top, &left, &bottom, &right);
    const bool fits =
        grown.w <= (screen.w - left - right) * density_ && grown.h <= (screen.h - top - bottom) * density_;
    return fits ? grown : baseSize_;
}

bool Screen::maximised() const {
    return (SDL_GetWindowFlags(native_.get()) & SDL_WINDOW_MAXIMIZED) != 0;
}

// Gives the native window the size that the windows of the game want. A maximised one keeps its own.
void Screen::settle() {
    measure();
    if (scene_.empty() || fullScreen_ || leavesFullScreen_ || maximised()) return;
    const Size wanted = wantedNative();
    stretchedSize_ = wanted == baseSize_ ? Size{} : wanted;
    if (wanted == size_) return;
    const Size points = scaled(wanted, 1 / density_);
    SDL_SetWindowSize(native_.get(), points.w, points.h);
    askedForSize();
    measure();
}

void Screen::askedForSize() {
    calmAt_ = SDL_GetTicks64() + patience;
}

void Screen::calm() {
    calmAt_.reset();
    if (std::exchange(leavesFullScreen_, false) && !scene_.empty()) {
        shape();
        settle();
    }
    sizeChanged();
}

void Screen::sizeChanged() {
    measure();
    // A person or the window manager has chosen another size.
    const bool chosen = !fullScreen_ && !calmAt_ && size_ != baseSize_ && size_ != stretchedSize_;
    if (chosen && !scene_.empty() && scene_.base()->frame() == Frame::sizable) {
        baseSize_ = size_;
        stretchedSize_ = {};
    }
    layOutAll();
}

void Screen::setFullScreen(bool on) {
    if (on == fullScreen_) return;
    fullScreen_ = on;
    if (!native_) return;
    if (SDL_SetWindowFullscreen(native_.get(), on ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0) != 0) {
        fullScreen_ = !on;
        return;
    }
    leavesFullScreen_ = !on;
    askedForSize();
    sizeChanged();
}

void Screen::setEnlarging(Enlarging how) {
    if (how == enlarging_) return;
    enlarging_ = how;
    if (!native_ || scene_.empty()) return;
    const Window& base = *scene_.base();
    windowedScale_ = windowedScale(base);
    if (!maximised()) {
        const Size client = base.frame() == Frame::sizable ? base.minimum : base.client();
        baseSize_ = scaled(client, windowedScale_ * density_);
    }
    shape();
    settle();
    layOutAll();
}

// --- the game's windows

void Screen::opened(Window& window) {
    scene_.opened(window);
    if (!native_)
        create(window);
    else if (scene_.base() == &window)
        takeOver(window);
    settle();
    layOutAll();
}

void Screen::closed(Window& window) {
    scene_.closed(window);
    settle();
    layOutAll();
}

void Screen::reshaped(Window& window) {
    if (scene_.empty() || !native_) return;
    if (&window == scene_.base()) {
        SDL_SetWindowTitle(native_.get(), nativeTitle(window).c_str());
        // The size of a person's choice, unless the window will not go along.
        const Tenant base = scene_.tenants().front();
        if (!fullScreen_ && baseClient(baseGround(), base) != window.client())
            baseSize_ = scaled(window.client(), baseScale(baseGround(), base));
        settle();
    }
    layOutAll();
}

// The ground as it is for the bottommost window: what it was stretched by for others is not its own.
Ground Screen::baseGround() const {
    Ground own{fullScreen_ ? size_ : baseSize_, enlarging_};
    if (!fullScreen_ && enlarging_ == Enlarging::whole) own.most = windowedScale_ * density_;
    return own;
}

Ground Screen::ground() const {
    Ground all = baseGround();
    all.native = size_;
    all.stretched = !fullScreen_ && size_ == stretchedSize_;
    if (all.stretched) all.most = baseScale(baseGround(), scene_.tenants().front());
    return all;
}

void Screen::layOutAll() {
    if (!scene_.empty()) scene_.layOut(ground());
}

std::optional<Size> Screen::resizeWanted() const {
    if (scene_.empty() || scene_.base()->frame() != Frame::sizable) return std::nullopt;
    const Size wanted = baseClient(baseGround(), scene_.tenants().front());
    return wanted == scene_.base()->client() ? std::nullopt : std::optional(wanted);
}

Point Screen::inPixels(Point p) const {
    return {static_cast<int>(std::floor(p.x * density_)), static_cast<int>(std::floor(p.y * density_))};
}

void Screen::show() {
    SDL_Surface* const target = scene_.stale() ? SDL_GetWindowSurface(native_.get()) : nullptr;
    if (target == nullptr) return;
    const bool all = scene_.exposed();
    if (all) SDL_FillRect(target, nullptr, 0);
    if (!plainFormat(*target)) return showThroughCopy(*target);
    const Rect painted =
        scene_.paint({static_cast<std::uint32_t*>(target->pixels), target->pitch, {target->w, target->h}});
    const SDL_Rect changed{painted.x, painted.y, painted.w, painted.h};
    if (all)
        SDL_UpdateWindowSurface(native_.get());
    else if (!painted.empty())
        SDL_UpdateWindowSurfaceRects(native_.get(), &changed, 1);
}

// For screens of another depth.
void Screen::showThroughCopy(SDL_Surface& target) {
    SDL_Surface* const copy = SDL_CreateRGBSurfaceWithFormat(0, target.w, target.h, 32, SDL_PIXELFORMAT_RGB888);
    if (copy == nullptr) return;
    const Rect painted = scene_.paint({static_cast<std::uint32_t*>(copy->pixels), copy->pitch, {copy->w, copy->h}});
    SDL_Rect from{painted.x, painted.y, painted.w, painted.h};
    SDL_Rect to = from;
    SDL_BlitSurface(copy, &from, &target, &to);
    SDL_FreeSurface(copy);
    SDL_UpdateWindowSurface(native_.get());
}

}  // namespace zentrox::sdl
