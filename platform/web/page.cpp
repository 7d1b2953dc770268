#include "platform/web/page.h"

#include <algorithm>
#include <cstdlib>
#include <random>

#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"
#include "platform/web/calls.h"
#include "platform/window/messagebox.h"

namespace zentrox::web {

namespace {

constexpr Milliseconds frame = 16;
constexpr int iconSide = 32;
constexpr std::uint32_t opaque = 0xFF000000U;

// The page hands in one thing as so many numbers, in this order.
enum Field { kind, x, y, button, clicks, code, shift, control, character, finger, fields };

// From the byte order of our pictures to that of a canvas.
std::uint32_t forCanvas(std::uint32_t pixel) {
    return (pixel & 0xFF00FF00U) | (pixel & 0xFFU) << 16U | (pixel >> 16U & 0xFFU);
}

bool takesClicks(const Control& control) {
    return control.enabled() && (control.onClick || control.onDown || control.takesFocus());
}

constexpr int fingertip = 16;  // pixels that a tap may miss by

// The place in a control that takes clicks, if one is within a fingertip of `at`; else `at` itself.
void findNear(Control& control, Point at, int& reach, Point& found) {
    if (!control.visible()) return;
    const Rect area = control.areaInWindow();
    const Point inside{std::clamp(at.x, area.x, std::max(area.x, area.right() - 1)),
                       std::clamp(at.y, area.y, std::max(area.y, area.bottom() - 1))};
    const int away = std::max(std::abs(at.x - inside.x), std::abs(at.y - inside.y));
    if (takesClicks(control) && away < reach) {
        reach = away;
        found = inside;
    }
    for (Control* const child : control.children()) findNear(*child, at, reach, found);
}

Point underFinger(Window& window, Point at) {
    if (takesClicks(window.controlAt(at))) return at;
    int reach = fingertip;
    Point found = at;
    findNear(window.root(), at, reach, found);
    return found;
}

// A character as the game knows it, 0 if it does not.
char characterOf(int codePoint) {
    if (codePoint < ' ') return static_cast<char>(codePoint);
    return fromUnicode(static_cast<char32_t>(codePoint)).value_or('\0');
}

}  // namespace

Milliseconds Page::clock() {
    return static_cast<Milliseconds>(pageClock());
}

std::optional<Input> Page::nextInput() {
    std::array<int, fields> event{};
    while (pageNext(event.data()) != 0) {
        Input input;
        input.kind = static_cast<Input::Kind>(event[kind]);
        input.at = {event[x], event[y]};
        input.button = static_cast<Button>(event[button]);
        input.clicks = event[clicks];
        input.code = event[code];
        input.repeat = input.kind == Input::Kind::keyDown && event[clicks] != 0;
        input.shift = event[shift] != 0;
        input.control = event[control] != 0;
        if (event[finger] != 0 && top() != nullptr) input.at = underFinger(*top(), input.at);
        if (input.kind != Input::Kind::keyPress) return input;
        input.character = characterOf(event[character]);
        if (input.character != 0) return input;
    }
    return std::nullopt;
}

// Without a time it waits for input alone.
void Page::sleep(std::optional<Milliseconds> until) {
    pageSleep(until ? static_cast<double>(*until) : -1.0);
}

Milliseconds Page::nextFrame() {
    const Milliseconds now = clock();
    frameDue_ = std::clamp(frameDue_ + frame, now + 1, now + frame);
    return frameDue_;
}

std::uint64_t Page::seed() {
    std::random_device device;
    return std::uint64_t{device()} << 32U | device();
}

// --- windows

// The one with the highest number: numbers are given in the order of opening.
Window* Page::top() const {
    const auto last = std::max_element(shown_.begin(), shown_.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return last == shown_.end() ? nullptr : last->first;
}

void Page::opened(Window& window) {
    const int number = ++lastNumber_;
    shown_[&window] = number;
    const Size client = window.client();
    pageOpen(number, toUtf8(window.name()).c_str(), toUtf8(window.title()).c_str(), client.w, client.h,
             static_cast<int>(window.frame()));
    window.changed({{0, 0}, client});
    pointerChanged(window);
}

void Page::closed(Window& window) {
    const auto found = shown_.find(&window);
    if (found == shown_.end()) return;
    pageClose(found->second);
    shown_.erase(found);
}

void Page::reshaped(Window& window) {
    const auto found = shown_.find(&window);
    if (found == shown_.end()) return;
    pageReshape(found->second, toUtf8(window.title()).c_str(), window.client().w, window.client().h);
    window.changed({{0, 0}, window.client()});
}

void Page::pointerChanged(Window& window) {
    const auto found = shown_.find(&window);
    if (found == shown_.end()) return;
    const Pointer& pointer = window.pointer();
    const std::string name = toUtf8(pointer.iconFile);
    const int mode = static_cast<int>(pointer.mode);
    // The page keeps the pictures of the pointers by their names, and says when it does not know one.
    if (pagePointer(found->second, mode, name.c_str()) != 0) return;
    try {
        Icon icon = loadIcon(files_, pointer.iconFile, 2 * iconSide);
        std::transform(icon.pixels.begin(), icon.pixels.end(), icon.pixels.begin(), forCanvas);
        pagePointerPicture(name.c_str(), icon.pixels.data(), icon.size.w, icon.size.h);
        pagePointer(found->second, mode, name.c_str());
    } catch (const DataError&) {
        pagePointer(found->second, static_cast<int>(Pointer::Mode::arrow), "");
    }
}

// --- showing

void Page::present() {
    presentDue_.reset();
    if (std::none_of(shown_.begin(), shown_.end(), [](const auto& shown) { return shown.first->stale(); })) return;
    const Milliseconds now = clock();
    if (now < lastPresent_ + frame) {
        presentDue_ = lastPresent_ + frame;
        return;
    }
    lastPresent_ = now;
    for (const auto& [window, number] : shown_) show(*window, number);
}

void Page::show(Window& window, int number) {
    const Bitmap& picture = window.compose();
    const Rect part = intersection(window.takeNews(), picture.bounds());
    if (part.empty()) return;
    pixels_.resize(static_cast<std::size_t>(part.w) * static_cast<std::size_t>(part.h));
    auto to = pixels_.begin();
    for (int y = part.y; y < part.bottom(); ++y) {
        const std::uint32_t* const row = picture.row(y) + part.x;
        to = std::transform(row, row + part.w, to, [](std::uint32_t pixel) { return forCanvas(pixel) | opaque; });
    }
    pageDraw(number, pixels_.data(), part.x, part.y, part.w, part.h);
}

// --- the rest of the machine

// A game is saved before the player is told so: the moment to put it where it outlasts the page.
void Page::messageBoxOpened(const MessageBox& box) {
    pageBox(toUtf8(box.title).c_str(), toUtf8(box.text).c_str());
}

std::array<std::uint8_t, 256> Page::keys() {
    std::array<std::uint8_t, 256> held{};
    pageKeys(held.data());
    return held;
}

std::string Page::clipboard() {
    constexpr int longest = 4096;
    std::string text(longest, '\0');
    text.resize(static_cast<std::size_t>(pageClipboard(text.data(), longest)));
    return text;
}

void Page::setClipboard(const std::string& text) {
    pageSetClipboard(text.c_str());
}

// What the game starts is the one program that shows a file; the page shows it in a tab of its own.
bool Page::start(const std::vector<std::string>& command) {
    return command.size() == 2 && pageShow(command[1].c_str()) != 0;
}

}  // namespace zentrox::web
