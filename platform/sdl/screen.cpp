#include "platform/sdl/screen.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <utility>

#include "platform/sdl/frame.h"
#include "platform/sdl/icon.h"
#include "platform/values/error.h"

namespace zentrox::sdl {

namespace {

constexpr double partOfScreen = 0.9;
constexpr Size roomSize{640, 480};  // a small window that stands alone is not enlarged more than a room would be
constexpr const char* program = "Zentrox";
constexpr Uint64 patience = 300;  // milliseconds until a window manager has followed

// The plain window surface without acceleration starts faster, takes less memory and costs less than what SDL
// chooses by itself on a machine without a graphics card. A hint set in the environment wins.
void startVideo() {
    SDL_SetHintWithPriority(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_APP_NAME, program, SDL_HINT_DEFAULT);
    SDL_setenv("SDL_VIDEO_X11_WMCLASS", "zentrox", 0);
    // Without a display SDL takes a driver that shows nothing; only who names it can want that.
    const bool works = SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
    const std::string_view driver = works ? SDL_GetCurrentVideoDriver() : "";
    if (works && (driver != "offscreen" || SDL_getenv("SDL_VIDEODRIVER") != nullptr)) return;
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
    const Window& base = *shown_.front().window;
    SDL_SetWindowTitle(native_.get(), nativeTitle(base).c_str());
    if (fullScreen_) return;
    const bool sizable = base.frame() == Frame::sizable;
    const Size least = sizable ? scaled(base.minimum, enlarging_ == Enlarging::whole ? windowedScale_ : 1) : Size{};
    if (least == least_) return;
    least_ = least;
    SDL_SetWindowMinimumSize(native_.get(), std::max(least.w, 1), std::max(least.h, 1));
    SDL_SetWindowResizable(native_.get(), sizable ? SDL_TRUE : SDL_FALSE);
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
    const std::vector<Tenant> all = tenants();
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
    if (shown_.empty() || fullScreen_ || leavesFullScreen_ || maximised()) return;
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
    if (std::exchange(leavesFullScreen_, false) && !shown_.empty()) {
        shape();
        settle();
    }
    sizeChanged();
}

void Screen::sizeChanged() {
    measure();
    // A person or the window manager has chosen another size.
    const bool chosen = !fullScreen_ && !calmAt_ && size_ != baseSize_ && size_ != stretchedSize_;
    if (chosen && !shown_.empty() && shown_.front().window->frame() == Frame::sizable) {
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
    if (!native_ || shown_.empty()) return;
    const Window& base = *shown_.front().window;
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
    shown_.push_back({&window, {}});
    closeDown_ = false;
    if (!native_)
        create(window);
    else if (shown_.size() == 1)
        takeOver(window);
    settle();
    layOutAll();
}

void Screen::closed(Window& window) {
    std::erase_if(shown_, [&](const Shown& s) { return s.window == &window; });
    closeDown_ = false;
    if (shown_.empty()) return;
    settle();
    layOutAll();
}

void Screen::reshaped(Window& window) {
    if (shown_.empty() || !native_) return;
    if (&window == shown_.front().window) {
        SDL_SetWindowTitle(native_.get(), nativeTitle(window).c_str());
        // The size of a person's choice, unless the window will not go along.
        if (!fullScreen_ && baseClient(baseGround(), tenants().front()) != window.client())
            baseSize_ = scaled(window.client(), baseScale(baseGround(), tenants().front()));
        settle();
    }
    layOutAll();
}

std::vector<Tenant> Screen::tenants() const {
    std::vector<Tenant> all;
    all.reserve(shown_.size());
    for (const Shown& s : shown_) all.push_back({s.window->client(), s.window->minimum, s.window->frame(), s.put});
    return all;
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
    if (all.stretched) all.most = baseScale(baseGround(), tenants().front());
    return all;
}

void Screen::layOutAll() {
    if (shown_.empty()) return;
    layout_ = layOut(ground(), tenants());
    if (canvas_.size() != layout_.canvas) canvas_ = Bitmap(layout_.canvas);
    enlarger_ = Enlarger(layout_.canvas, layout_.scale, enlarging_);
    exposed_ = true;
}

std::optional<Size> Screen::resizeWanted() const {
    if (shown_.empty() || shown_.front().window->frame() != Frame::sizable) return std::nullopt;
    const Size wanted = baseClient(baseGround(), tenants().front());
    return wanted == shown_.front().window->client() ? std::nullopt : std::optional(wanted);
}

// --- the pointer

Point Screen::onCanvas(Point p) const {
    const auto down = [&](int v, int corner) {
        return static_cast<int>(std::floor((v * density_ - corner) / layout_.scale + 1e-6));
    };
    return {down(p.x, layout_.corner.x), down(p.y, layout_.corner.y)};
}

Place Screen::placeAt(Point p) const {
    if (shown_.empty()) return Place::outside;
    return placeOf(onCanvas(p), layout_.clients.back(), top()->frame(), shown_.size() > 1);
}

Point Screen::inTop(Point p) const {
    return layout_.clients.empty() ? p : onCanvas(p) - layout_.clients.back().at();
}

void Screen::dragTop(Point to, Point grip) {
    if (shown_.size() < 2) return;
    const Point below = layout_.clients[shown_.size() - 2].at();
    shown_.back().put = onCanvas(to) - grip - below;
    layOutAll();
    shown_.back().put = layout_.clients.back().at() - below;
}

void Screen::pressCloseBox(bool down) {
    if (down == closeDown_) return;
    closeDown_ = down;
    exposed_ = true;
}

// --- showing

bool Screen::stale() const {
    if (shown_.empty()) return false;
    return exposed_ || std::any_of(shown_.begin(), shown_.end(), [](const Shown& s) { return s.window->stale(); });
}

bool Screen::hiddenByOthers(std::size_t index, const Rect& part) const {
    for (std::size_t i = index + 1; i < shown_.size(); ++i)
        if (intersection(part, outerArea(layout_.clients[i], shown_[i].window->frame())) == part) return true;
    return false;
}

// Brings the pictures of all windows up to date; gives the part of the canvas that has changed.
Rect Screen::collectNews() {
    Rect news;
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const Bitmap& picture = shown_[i].window->compose();
        const Rect own = intersection(shown_[i].window->takeNews(), picture.bounds());
        const Rect part{own.at() + layout_.clients[i].at(), own.size()};
        if (!part.empty() && !hiddenByOthers(i, part)) news = united(news, part);
    }
    return intersection(exposed_ ? canvas_.bounds() : news, canvas_.bounds());
}

void Screen::paint(const Rect& part) {
    canvas_.setClip(part);
    if (intersection(part, layout_.clients.front()) != part) canvas_.fill(part, black);
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const bool active = i + 1 == shown_.size();
        if (i > 0) drawFrame(canvas_, *shown_[i].window, layout_.clients[i], {active, active && closeDown_});
        canvas_.copy(shown_[i].window->compose(), layout_.clients[i].at());
    }
    canvas_.setClip(canvas_.bounds());
}

void Screen::show() {
    if (shown_.empty()) return;
    const Rect part = collectNews();
    if (part.empty()) return;
    paint(part);
    present(part);
    exposed_ = false;
}

void Screen::present(const Rect& part) {
    SDL_Surface* const target = SDL_GetWindowSurface(native_.get());
    if (target == nullptr) return;
    if (exposed_) SDL_FillRect(target, nullptr, 0);
    if (!plainFormat(*target)) {
        presentThroughCopy(*target, part);
        SDL_UpdateWindowSurface(native_.get());
        return;
    }
    const Pixels pixels{static_cast<std::uint32_t*>(target->pixels), target->pitch, {target->w, target->h}};
    const Rect painted = enlarger_.paint(canvas_, part, pixels, layout_.corner);
    const SDL_Rect changed{painted.x, painted.y, painted.w, painted.h};
    if (exposed_)
        SDL_UpdateWindowSurface(native_.get());
    else
        SDL_UpdateWindowSurfaceRects(native_.get(), &changed, 1);
}

// For screens of another depth.
void Screen::presentThroughCopy(SDL_Surface& target, const Rect& part) {
    SDL_Surface* const copy = SDL_CreateRGBSurfaceWithFormat(0, target.w, target.h, 32, SDL_PIXELFORMAT_RGB888);
    if (copy == nullptr) return;
    const Pixels pixels{static_cast<std::uint32_t*>(copy->pixels), copy->pitch, {copy->w, copy->h}};
    const Rect painted = enlarger_.paint(canvas_, part, pixels, layout_.corner);
    SDL_Rect area{painted.x, painted.y, painted.w, painted.h};
    SDL_Rect same = area;
    SDL_BlitSurface(copy, &area, &target, &same);
    SDL_FreeSurface(copy);
}

}  // namespace zentrox::sdl
