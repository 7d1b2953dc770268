// What a walk asks: conditions, and what it prints of the game.
#include <charconv>
#include <cstdlib>
#include <iomanip>
#include <ostream>
#include <sstream>

#include "platform/codec/pictures.h"
#include "tools/probe/player.h"

namespace zentrox::probe {

namespace {

constexpr Milliseconds untilLimit = 60000;

int number(const std::string& word) {
    int value = 0;
    std::from_chars(word.data(), word.data() + word.size(), value);
    return value;
}

std::string inQuotes(TextView text) {
    return '"' + onOneLine(text) + '"';
}

void printControls(Control& control, Point at, std::ostream& out) {
    if (!control.visible()) return;
    if (!control.kind().empty()) {
        out << control.kind() << ' ' << at.x << ' ' << at.y << ' ' << control.width() << ' ' << control.height()
            << ' ' << inQuotes(control.shownText()) << (control.enabled() ? "" : " disabled") << '\n';
    }
    for (Control* const child : control.children()) printControls(*child, at + child->area().at(), out);
}

// The words of a box: what stands in its labels.
std::string labels(const Control& control) {
    std::string all = control.kind() == "label" ? onOneLine(control.shownText()) : "";
    for (const Control* const child : control.children()) {
        const std::string words = labels(*child);
        if (!words.empty()) all += (all.empty() ? "" : " ") + words;
    }
    return all;
}

}  // namespace

void Player::wait(const Command& command) {
    push(Pause{backend_.clock() + std::max(0, number(command.words[0]))});
}

void Player::until(const Command& command) {
    const Milliseconds limit = command.words.empty() ? untilLimit : number(command.words[0]);
    push(Await{[this, condition = command.condition] { return holds(condition); }, backend_.clock() + limit,
               command.condition.spelled + " within " + std::to_string(limit) + " ms",
               [this, condition = command.condition] { return found(condition); }});
}

void Player::expect(const Command& command) {
    if (!holds(command.condition)) fail(command.condition.spelled, found(command.condition));
}

void Player::end(const Command& /*command*/) {
    position_ = walk_.commands.size();
}

// The client area as a person sees it. The bottommost window stands round the middle of it.
Bitmap Player::picture(Window& window) {
    Bitmap seen = window.compose();
    if (!backend_.overlay) return seen;
    const Size base = platform_->queue.windows().front()->client();
    backend_.overlay(seen, {{(seen.width() - base.w) / 2, (seen.height() - base.h) / 2}, base}, seen.bounds());
    return seen;
}

void Player::shot(const Command& command) {
    const std::string& file = command.words[0];
    Window& window = active("a window for the shot");
    const std::filesystem::path path = pictures_ / std::filesystem::path(file);
    if (!savePng(picture(window), path.string())) fail("to write " + file, "that it can't be written");
}

void Player::say(const Command& command) {
    if (command.words.empty()) {
        out_ << (holds(command.condition) ? "yes\n" : "no\n");
    } else if (command.words[0] == "controls") {
        sayControls();
    } else if (command.words[0] == "state") {
        if (game_ == nullptr) return;
        for (const Text& line : game_->state()) out_ << toUtf8(line) << '\n';
    } else {
        const Pointer pointer = active("a pointer").pointer();
        const char* const words[] = {"arrow", "question", "invisible"};
        const bool own = pointer.mode == Pointer::Mode::own;
        const Text file = pointer.iconFile.substr(pointer.iconFile.rfind('\\') + 1);
        out_ << (own ? toUtf8(file) : words[static_cast<int>(pointer.mode)]) << '\n';
    }
}

void Player::sayControls() {
    printControls(active("controls").root(), {0, 0}, out_);
}

bool Player::holds(const Condition& condition) {
    const std::string& kind = condition.kind;
    const Text word = condition.words.empty() ? Text() : fromUtf8(condition.words[0]);
    Window* const window = platform_ != nullptr ? platform_->queue.active() : nullptr;
    bool result = false;
    if (kind == "ended") {
        result = platform_ == nullptr;
    } else if (kind == "window" || kind == "title" || kind == "text" || kind == "pixel") {
        result = window != nullptr && windowHolds(condition, *window);
        if (result && !condition.negated && window->name() == "MsgBox") backend_.boxExpected = true;
    } else if (game_ != nullptr) {
        if (kind == "idle") result = game_->idle();
        if (kind == "flag") result = game_->flag(word);
        if (kind == "item") result = game_->carries(word);
        if (kind == "room") result = game_->inRoom(word);
        if (kind == "evil") result = game_->evil() == number(condition.words[0]);
        if (kind == "choice") result = game_->choiceOpen();
    }
    return result != condition.negated;
}

bool Player::windowHolds(const Condition& condition, Window& window) {
    if (condition.kind == "pixel") {
        const Point at{number(condition.words[0]), number(condition.words[1])};
        return picture(window).pixel(at) == std::strtol(condition.words[2].c_str(), nullptr, 16);
    }
    const Text word = fromUtf8(condition.words[0]);
    if (condition.kind == "window") return window.name() == word;
    if (condition.kind == "title") return window.title() == word;
    return window.shows(word);
}

std::string Player::found(const Condition& condition) {
    Window* const window = platform_ != nullptr ? platform_->queue.active() : nullptr;
    if (window != nullptr && condition.kind == "title") return "the title " + inQuotes(window->title());
    if (window != nullptr && condition.kind == "pixel") {
        const Point at{number(condition.words[0]), number(condition.words[1])};
        std::ostringstream colour;
        colour << std::hex << std::uppercase << std::setfill('0') << std::setw(6)
               << (picture(*window).pixel(at) & 0xFFFFFFU);
        return colour.str();
    }
    if (condition.kind == "evil" && game_ != nullptr) return std::to_string(game_->evil());
    return seen();
}

std::string Player::seen() {
    Window* const window = platform_ != nullptr ? platform_->queue.active() : nullptr;
    if (window == nullptr) return "no open window";
    std::string all = "window " + toUtf8(window->name());
    if (window->name() == "MsgBox") all += " with \"" + labels(window->root()) + '"';
    if (game_ != nullptr) {
        for (const Text& line : game_->state())
            if (line.rfind("room ", 0) == 0) all += ", " + toUtf8(line);
        if (const auto lines = game_->standingText()) {
            std::string text;
            for (const Text& line : *lines) text += (text.empty() ? "" : "\\n") + onOneLine(line);
            all += ", where the text \"" + text + "\" waits";
        }
        const auto options = game_->options();
        for (std::size_t i = 0; i < options.size(); ++i)
            all +=
                (i == 0 ? ", where a choice waits: " : ", ") + std::to_string(i + 1) + ' ' + inQuotes(options[i]);
    }
    const Text reasons = platform_->queue.reasons();
    if (!reasons.empty()) all += ", waiting in " + toUtf8(reasons);
    return all;
}

}  // namespace zentrox::probe
