#include "tools/probe/player.h"

#include <charconv>
#include <cstdlib>
#include <iomanip>
#include <ostream>
#include <sstream>

#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"

namespace zentrox::probe {

namespace {

constexpr Milliseconds untilLimit = 60000;
constexpr Milliseconds slideLimit = 10000;  // for the bar to open or close

Button buttonNamed(const std::string& word) {
    if (word == "right") return Button::right;
    if (word == "middle") return Button::middle;
    return Button::left;
}

// What the walk's reader has found to be one.
int number(const std::string& word) {
    int value = 0;
    std::from_chars(word.data(), word.data() + word.size(), value);
    return value;
}

}  // namespace

Player::Player(Walk walk, ProbeBackend& backend, std::filesystem::path pictures, std::ostream& out)
    : walk_(std::move(walk)),
      backend_(backend),
      pictures_(std::move(pictures)),
      out_(out) {}

void Player::attach(Platform* platform, Game* game) {
    platform_ = platform;
    game_ = game;
}

std::string Player::place() const {
    return walk_.name + ":" + std::to_string(line_);
}

void Player::fail(const std::string& expected, const std::string& found) {
    failed_ = true;
    throw WalkFailure{place() + ": expected " + expected + ", found " + found};
}

Window& Player::active(const std::string& wanted) {
    Window* const window = platform_ != nullptr ? platform_->queue.active() : nullptr;
    if (window == nullptr) fail(wanted, "no open window");
    return *window;
}

// --- the course of the walk

std::optional<Input> Player::next() {
    if (failed_) throw ProgramEnd{1};
    if (!somethingShown()) return std::nullopt;
    for (;;) {
        if (steps_.empty()) {
            if (position_ == walk_.commands.size()) throw ProgramEnd{};
            const Command& command = walk_.commands[position_++];
            line_ = command.line;
            insertAt_ = 0;
            begin(command);
            continue;
        }
        Step& step = steps_.front();
        if (step.input) {
            const Input input = *step.input;
            steps_.pop_front();
            return input;
        }
        if (step.unfold) {
            const auto unfold = std::move(step.unfold);
            steps_.pop_front();
            insertAt_ = 0;
            unfold();
            continue;
        }
        if (step.timeOnly && backend_.clock() >= step.deadline) {
            // What falls due at this very moment happens first.
            if (!settled_) {
                settled_ = true;
                return std::nullopt;
            }
        } else if (!step.holds || !step.holds()) {
            if (!step.timeOnly && backend_.clock() >= step.deadline)
                fail(step.expected, step.found ? step.found() : "that it did not happen");
            return std::nullopt;
        }
        settled_ = false;
        steps_.pop_front();
    }
}

// Before its first window is open there is nothing that a person could do.
bool Player::somethingShown() const {
    return platform_ != nullptr && platform_->queue.active() != nullptr;
}

bool Player::ready() {
    if (!somethingShown()) return false;
    if (failed_ || steps_.empty()) return true;
    const Step& step = steps_.front();
    if (step.input || step.unfold) return true;
    return backend_.clock() >= step.deadline || (step.holds && step.holds());
}

std::optional<Milliseconds> Player::due() {
    if (steps_.empty() || !somethingShown()) return std::nullopt;
    return steps_.front().deadline;
}

void Player::finish() {
    attach(nullptr, nullptr);
    steps_.clear();
    while (position_ < walk_.commands.size()) {
        const Command& command = walk_.commands[position_++];
        line_ = command.line;
        if (command.verb == "end") return;
        if (command.verb == "wait") continue;
        if (command.verb == "say") {
            say(command);
        } else if (command.verb != "expect" && command.verb != "until") {
            fail(command.verb, "that the program has ended");
        } else if (!holds(command.condition)) {
            fail(command.condition.spelled, "that the program has ended");
        }
    }
}

// --- commands

void Player::begin(const Command& command) {
    const std::string& verb = command.verb;
    if (verb == "wait") {
        Step step;
        step.deadline = backend_.clock() + std::max(0, number(command.words[0]));
        step.timeOnly = true;
        steps_.push_back(std::move(step));
    } else if (verb == "until") {
        const Milliseconds limit = command.words.empty() ? untilLimit : number(command.words[0]);
        Step step;
        step.holds = [this, condition = command.condition] { return holds(condition); };
        step.deadline = backend_.clock() + limit;
        step.expected = command.condition.spelled + " within " + std::to_string(limit) + " ms";
        step.found = [this, condition = command.condition] { return found(condition); };
        steps_.push_back(std::move(step));
    } else if (verb == "expect") {
        if (!holds(command.condition)) fail(command.condition.spelled, found(command.condition));
    } else if (verb == "say") {
        say(command);
    } else if (verb == "shot") {
        shot(command.words[0]);
    } else if (verb == "end") {
        position_ = walk_.commands.size();
    } else if (verb == "down" || verb == "up" || verb == "key" || verb == "type") {
        beginKeys(command);
    } else if (verb == "resize") {
        push({.kind = Input::Kind::resize, .size = {number(command.words[0]), number(command.words[1])}});
    } else if (verb == "close") {
        push({.kind = Input::Kind::close});
    } else if (verb == "use" || verb == "look" || verb == "give" || verb == "combine" || verb == "choose") {
        beginThing(command);
    } else {
        beginPointer(command);
    }
}

void Player::beginPointer(const Command& command) {
    active(command.verb);
    std::vector<std::string> words = command.words;
    Button button = Button::left;
    if (!words.empty() && !isNumber(words[0])) {
        button = buttonNamed(words[0]);
        words.erase(words.begin());
    }
    if (words.size() == 2) {
        pointerAt_ = {number(words[0]), number(words[1])};
        if (command.verb == "click" || command.verb == "doubleclick") {
            pushClick(pointerAt_, button);
            if (command.verb == "click") return;
            push({.kind = Input::Kind::press, .at = pointerAt_, .button = button, .clicks = 2});
            push({.kind = Input::Kind::release, .at = pointerAt_, .button = button});
            return;
        }
        push({.kind = Input::Kind::move, .at = pointerAt_, .button = held_});
    }
    if (command.verb == "press") push({.kind = Input::Kind::press, .at = pointerAt_, .button = held_ = button});
    if (command.verb == "release") {
        held_ = Button::none;
        push({.kind = Input::Kind::release, .at = pointerAt_, .button = button});
    }
}

void Player::beginKeys(const Command& command) {
    if (command.verb != "type") {
        const std::string& key = command.words[0];
        pushKey(keyCode(key), keyCharacter(key), command.verb != "up", command.verb != "down");
        return;
    }
    for (const char c : fromUtf8(command.words[0])) {
        const char big = upper(c);
        const bool plain = (big >= 'A' && big <= 'Z') || (c >= '0' && c <= '9') || c == ' ';
        const int code = plain      ? static_cast<unsigned char>(big)
                         : c == ',' ? key::comma
                         : c == '.' ? key::period
                                    : 0;
        pushKey(code, c, true, true);
    }
}

void Player::beginThing(const Command& command) {
    const std::string& verb = command.verb;
    const Text first = fromUtf8(command.words[0]);
    const Text last = fromUtf8(command.words.back());
    const Button button = verb == "look" ? Button::right : Button::left;
    if (verb == "choose") {
        pushClick(reach(game_->option(number(command.words[0])), "option " + command.words[0]), button);
    } else if (command.words.size() == 2 && (verb == "use" || verb == "look")) {
        openBar();
        pushUnfold([this, last, button] { pushClick(reach(game_->item(last), "item " + toUtf8(last)), button); });
    } else if (verb == "use" || verb == "look") {
        pushClick(reach(game_->object(first), "object " + command.words[0]), button);
    } else {
        openBar();
        pushUnfold([this, first] { dragItem(first); });
        if (verb == "combine") {
            pushUnfold([this, last] {
                const Point at = reach(game_->item(last), "item " + toUtf8(last));
                push({.kind = Input::Kind::move, .at = at, .button = Button::left});
                push({.kind = Input::Kind::release, .at = at, .button = Button::left});
            });
            return;
        }
        pushUnfold([this] {
            push({.kind = Input::Kind::move,
                  .at = reach(game_->aboveBar(), "a place above the bar"),
                  .button = Button::left});
        });
        pushUntil([this] { return !game_->barOpen() && !game_->barSlides(); }, slideLimit, "the bar closed");
        pushUnfold([this, last] {
            const Point at = reach(game_->object(last), "object " + toUtf8(last));
            push({.kind = Input::Kind::move, .at = at, .button = Button::left});
            push({.kind = Input::Kind::release, .at = at, .button = Button::left});
        });
    }
}

void Player::openBar() {
    pushUntil([this] { return !game_->barSlides(); }, slideLimit, "the bar at rest");
    pushUnfold([this] {
        if (game_->barOpen()) return;
        pushKey(key::space, ' ', true, true);
        pushUntil([this] { return game_->barOpen(); }, slideLimit, "the bar open");
    });
}

void Player::dragItem(const Text& item) {
    const Point at = reach(game_->item(item), "item " + toUtf8(item));
    push({.kind = Input::Kind::move, .at = at});
    push({.kind = Input::Kind::press, .at = at, .button = Button::left});
}

Point Player::reach(std::optional<Point> place, const std::string& what) {
    if (!place) fail(what, "no place that can be reached");
    pointerAt_ = *place;
    return *place;
}

void Player::push(Input input) {
    Step step;
    step.input = input;
    steps_.insert(steps_.begin() + static_cast<std::ptrdiff_t>(insertAt_++), std::move(step));
}

void Player::pushKey(int code, char character, bool down, bool up) {
    active("a key");
    if (down) push({.kind = Input::Kind::keyDown, .code = code});
    if (down && character != 0) push({.kind = Input::Kind::keyPress, .character = character});
    if (up) push({.kind = Input::Kind::keyUp, .code = code});
}

void Player::pushClick(Point at, Button button) {
    push({.kind = Input::Kind::move, .at = at});
    push({.kind = Input::Kind::press, .at = at, .button = button});
    push({.kind = Input::Kind::release, .at = at, .button = button});
}

void Player::pushUntil(std::function<bool()> condition, Milliseconds limit, const std::string& expected) {
    Step step;
    step.holds = std::move(condition);
    step.deadline = backend_.clock() + limit;
    step.expected = expected;
    steps_.insert(steps_.begin() + static_cast<std::ptrdiff_t>(insertAt_++), std::move(step));
}

void Player::pushUnfold(std::function<void()> unfold) {
    Step step;
    step.unfold = std::move(unfold);
    steps_.insert(steps_.begin() + static_cast<std::ptrdiff_t>(insertAt_++), std::move(step));
}

void Player::shot(const std::string& file) {
    Window& window = active("a window for the shot");
    const std::filesystem::path path = pictures_ / std::filesystem::path(file);
    if (!savePng(window.compose(), path.string())) fail("to write " + file, "that it can't be written");
}

// --- what it says

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

namespace {

void printControls(Control& control, Point at, std::ostream& out) {
    if (!control.visible()) return;
    if (!control.kind().empty()) {
        out << control.kind() << ' ' << at.x << ' ' << at.y << ' ' << control.width() << ' ' << control.height()
            << " \"" << onOneLine(control.shownText()) << '"' << (control.enabled() ? "" : " disabled") << '\n';
    }
    for (Control* const child : control.children()) printControls(*child, at + child->area().at(), out);
}

}  // namespace

void Player::sayControls() {
    printControls(active("controls").root(), {0, 0}, out_);
}

// --- conditions

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
        return window.compose().pixel(at) == std::strtol(condition.words[2].c_str(), nullptr, 16);
    }
    const Text word = fromUtf8(condition.words[0]);
    if (condition.kind == "window") return window.name() == word;
    if (condition.kind == "title") return window.title() == word;
    return window.shows(word);
}

std::string Player::found(const Condition& condition) {
    Window* const window = platform_ != nullptr ? platform_->queue.active() : nullptr;
    if (window == nullptr) return "no open window";
    if (condition.kind == "title") return "the title \"" + toUtf8(window->title()) + '"';
    if (condition.kind == "pixel") {
        const Point at{number(condition.words[0]), number(condition.words[1])};
        std::ostringstream colour;
        colour << std::hex << std::uppercase << std::setfill('0') << std::setw(6)
               << (window->compose().pixel(at) & 0xFFFFFFU);
        return colour.str();
    }
    if (condition.kind == "evil" && game_ != nullptr) return std::to_string(game_->evil());
    std::string where = "window " + toUtf8(window->name());
    if (game_ != nullptr)
        for (const Text& line : game_->state())
            if (line.rfind("room ", 0) == 0) where += ", " + toUtf8(line);
    const Text reasons = platform_->queue.reasons();
    if (!reasons.empty()) where += ", waiting in " + toUtf8(reasons);
    return where;
}

}  // namespace zentrox::probe
