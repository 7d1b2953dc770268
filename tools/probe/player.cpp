#include "tools/probe/player.h"

#include "platform/values/error.h"
#include "tools/probe/verbs.h"

namespace zentrox::probe {

Player::Player(Walk walk, ProbeBackend& backend, std::filesystem::path pictures, std::ostream& out,
               std::chrono::seconds patience)
    : walk_(std::move(walk)),
      backend_(backend),
      pictures_(std::move(pictures)),
      out_(out),
      impatient_(std::chrono::steady_clock::now() + patience) {}

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

std::optional<Input> Player::next() {
    if (failed_) throw ProgramEnd{1};
    if (!somethingShown()) return std::nullopt;
    checkPatience();
    for (;;) {
        if (steps_.empty()) {
            if (position_ == walk_.commands.size()) throw ProgramEnd{};
            const Command& command = walk_.commands[position_++];
            line_ = command.line;
            insertAt_ = 0;
            (this->*command.verb->play)(command);
            continue;
        }
        Step& step = steps_.front();
        if (const Input* const waiting = std::get_if<Input>(&step)) {
            const Input input = *waiting;
            steps_.pop_front();
            return input;
        }
        if (Unfold* const waiting = std::get_if<Unfold>(&step)) {
            const Unfold unfold = std::move(*waiting);
            steps_.pop_front();
            insertAt_ = 0;
            unfold();
            continue;
        }
        const Pause* const pause = std::get_if<Pause>(&step);
        if (!(pause != nullptr ? passed(*pause) : passed(std::get<Await>(step)))) return std::nullopt;
        settled_ = false;
        steps_.pop_front();
    }
}

// What falls due at the very end of a pause happens first.
bool Player::passed(const Pause& pause) {
    if (backend_.clock() < pause.end) return false;
    const bool settled = settled_;
    settled_ = true;
    return settled;
}

bool Player::passed(const Await& await) {
    if (await.holds()) return true;
    if (backend_.clock() >= await.deadline) fail(await.expected, await.found ? await.found() : seen());
    return false;
}

void Player::checkPatience() {
    if (std::chrono::steady_clock::now() < impatient_) return;
    fail("the walk to end in time", "that it takes longer than --timeout; " + seen());
}

// Before its first window is open there is nothing that a person could do.
bool Player::somethingShown() const {
    return platform_ != nullptr && platform_->queue.active() != nullptr;
}

bool Player::ready() {
    if (!somethingShown()) return false;
    if (failed_ || steps_.empty()) return true;
    const Step& step = steps_.front();
    if (const Pause* const pause = std::get_if<Pause>(&step)) return backend_.clock() >= pause->end;
    if (const Await* const await = std::get_if<Await>(&step))
        return backend_.clock() >= await->deadline || await->holds();
    return true;
}

void Player::stuck() {
    fail("the script to wait or to end", "that it runs in a loop without a wait; " + seen());
}

std::optional<Milliseconds> Player::due() {
    if (steps_.empty() || !somethingShown()) return std::nullopt;
    const Step& step = steps_.front();
    if (const Pause* const pause = std::get_if<Pause>(&step)) return pause->end;
    if (const Await* const await = std::get_if<Await>(&step)) return await->deadline;
    return backend_.clock();
}

void Player::finish() {
    attach(nullptr, nullptr);
    steps_.clear();
    while (position_ < walk_.commands.size()) {
        const Command& command = walk_.commands[position_++];
        line_ = command.line;
        const std::string verb = command.verb->name;
        if (verb == "end") return;
        if (verb == "wait") continue;
        if (verb == "say") {
            say(command);
        } else if (verb != "expect" && verb != "until") {
            fail(verb, "that the program has ended");
        } else if (!holds(command.condition)) {
            fail(command.condition.spelled, "that the program has ended");
        }
    }
}

void Player::push(Step step) {
    steps_.insert(steps_.begin() + static_cast<std::ptrdiff_t>(insertAt_++), std::move(step));
}

void Player::pushKey(int code, char character, bool down, bool up) {
    active("a key");
    if (down) push(Input{.kind = Input::Kind::keyDown, .code = code});
    if (down && character != 0) push(Input{.kind = Input::Kind::keyPress, .character = character});
    if (up) push(Input{.kind = Input::Kind::keyUp, .code = code});
}

void Player::pushClick(Point at, Button button) {
    push(Input{.kind = Input::Kind::move, .at = at});
    push(Input{.kind = Input::Kind::press, .at = at, .button = button});
    push(Input{.kind = Input::Kind::release, .at = at, .button = button});
}

void Player::pushUntil(std::function<bool()> condition, Milliseconds limit, const std::string& expected) {
    push(Await{std::move(condition), backend_.clock() + limit, expected, {}});
}

}  // namespace zentrox::probe
