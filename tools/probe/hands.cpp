// What a walk does: the hands of a player on mouse and keyboard, and the three things that no player can do.
#include <algorithm>
#include <charconv>

#include "engine/state/felder.h"
#include "platform/values/keys.h"
#include "tools/probe/player.h"

namespace zentrox::probe {

namespace {

constexpr Milliseconds slideLimit = 10000;  // for the bar to open or close
constexpr Milliseconds gameLook = 100;      // between two looks whether a game can be decided
constexpr Milliseconds gameRest = 5000;     // between two attempts to leave a game that has ended
constexpr Milliseconds gameLimit = 300000;
// For a script to say or ask something, or to end; the credits of a story are long.
constexpr Milliseconds scriptLimit = 600000;

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

// --- pointer and keys

Button Player::takePointer(std::vector<std::string> words) {
    active("the pointer");
    Button button = Button::left;
    if (!words.empty() && !isNumber(words[0])) {
        button = buttonNamed(words[0]);
        words.erase(words.begin());
    }
    if (words.size() != 2) return button;
    pointerAt_ = {number(words[0]), number(words[1])};
    return button;
}

void Player::move(const Command& command) {
    takePointer(command.words);
    push(Input{.kind = Input::Kind::move, .at = pointerAt_, .button = held_});
}

void Player::press(const Command& command) {
    const Button button = takePointer(command.words);
    if (command.words.size() >= 2) push(Input{.kind = Input::Kind::move, .at = pointerAt_, .button = held_});
    push(Input{.kind = Input::Kind::press, .at = pointerAt_, .button = held_ = button});
}

void Player::release(const Command& command) {
    const Button button = takePointer(command.words);
    if (command.words.size() >= 2) push(Input{.kind = Input::Kind::move, .at = pointerAt_, .button = held_});
    held_ = Button::none;
    push(Input{.kind = Input::Kind::release, .at = pointerAt_, .button = button});
}

void Player::click(const Command& command) {
    const Button button = takePointer(command.words);
    pushClick(pointerAt_, button);
}

void Player::doubleClick(const Command& command) {
    click(command);
    push(Input{.kind = Input::Kind::press, .at = pointerAt_, .button = Button::left, .clicks = 2});
    push(Input{.kind = Input::Kind::release, .at = pointerAt_, .button = Button::left});
}

void Player::key(const Command& command) {
    pushKey(keyCode(command.words[0]), keyCharacter(command.words[0]), true, true);
}

void Player::keyDown(const Command& command) {
    pushKey(keyCode(command.words[0]), keyCharacter(command.words[0]), true, false);
}

void Player::keyUp(const Command& command) {
    pushKey(keyCode(command.words[0]), keyCharacter(command.words[0]), false, true);
}

void Player::type(const Command& command) {
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

void Player::resize(const Command& command) {
    push(Input{.kind = Input::Kind::resize, .size = {number(command.words[0]), number(command.words[1])}});
}

void Player::close(const Command& /*command*/) {
    push(Input{.kind = Input::Kind::close});
}

// --- texts

struct Player::Reading {
    std::vector<Text> wanted;  // in the order in which they have to come
    std::size_t next = 0;
    std::vector<Text> last;  // the lines of the text that was passed last
};

// Passes one text after the other until the game wants something else than a key.
void Player::read(const Command& command) {
    room("a text");
    const auto reading = std::make_shared<Reading>();
    for (const std::string& word : command.words) reading->wanted.push_back(fromUtf8(word));
    push(Unfold([this, reading] { readOn(reading); }));
}

void Player::readOn(const std::shared_ptr<Reading>& reading) {
    const auto over = [this] { return game_->idle() || game_->choiceOpen() || !inRoomWindow(); };
    if (const auto lines = game_->standingText()) {
        reading->last = *lines;
        while (reading->next < reading->wanted.size() && active("a text").shows(reading->wanted[reading->next]))
            ++reading->next;
        pushKey(key::space, ' ', true, true);
        push(Await{
            [this] { return !game_->standingText(); }, backend_.clock() + slideLimit, "the text to close", {}});
    } else if (over()) {
        if (reading->next < reading->wanted.size())
            fail("a text with \"" + toUtf8(reading->wanted[reading->next]) + '"', "that it never came; " + seen());
        return;
    } else {
        push(Await{[this, over] { return game_->standingText() || over(); },
                   backend_.clock() + scriptLimit,
                   "the next text, or the end of the script",
                   {}});
    }
    push(Unfold([this, reading] { readOn(reading); }));
}

// --- the things of a room

Game& Player::room(const std::string& wanted) {
    active(wanted);
    if (game_ == nullptr) fail(wanted, seen());
    return *game_;
}

void Player::whenFree(const std::string& wanted, Unfold then) {
    room(wanted);
    const auto asked = [this] { return game_->standingText() || game_->choiceOpen(); };
    const auto busy = [this, asked] { return game_->scriptRuns() && inRoomWindow() && !asked(); };
    if (busy()) pushUntil([busy] { return !busy(); }, scriptLimit, wanted + " to be clicked");
    push(Unfold([this, wanted, asked, then = std::move(then)] {
        if (asked()) fail(wanted + " to be clicked", seen());
        then();
    }));
}

Point Player::objectAt(const Text& object) {
    const auto at = game_->object(object);
    if (!at) fail("object " + toUtf8(object), game_->whyNoObject(object));
    return pointerAt_ = *at;
}

Point Player::itemAt(const Text& item) {
    const auto at = game_->item(item);
    if (!at) fail("item " + toUtf8(item), game_->whyNoItem(item));
    return pointerAt_ = *at;
}

void Player::clickObject(const Command& command, Button button) {
    whenFree("object " + command.words[0],
             [this, object = fromUtf8(command.words[0]), button] { pushClick(objectAt(object), button); });
}

void Player::clickItem(const Command& command, Button button) {
    whenFree("item " + command.words[1], [this, item = fromUtf8(command.words[1]), button] {
        openBar();
        push(Unfold([this, item, button] { pushClick(itemAt(item), button); }));
    });
}

void Player::useObject(const Command& command) {
    clickObject(command, Button::left);
}

void Player::lookObject(const Command& command) {
    clickObject(command, Button::right);
}

void Player::useItem(const Command& command) {
    clickItem(command, Button::left);
}

void Player::lookItem(const Command& command) {
    clickItem(command, Button::right);
}

void Player::combine(const Command& command) {
    whenFree("item " + command.words[0], [this, words = command.words] {
        openBar();
        dragItem(fromUtf8(words[0]));
        dropOn([this, onto = fromUtf8(words[1])] { return itemAt(onto); });
    });
}

void Player::give(const Command& command) {
    whenFree("item " + command.words[0], [this, words = command.words] {
        openBar();
        dragItem(fromUtf8(words[0]));
        leaveBar();
        dropOn([this, onto = fromUtf8(words[1])] { return objectAt(onto); });
    });
}

void Player::openBar() {
    pushUntil([this] { return !game_->barSlides(); }, slideLimit, "the bar at rest");
    push(Unfold([this] {
        if (game_->barOpen()) return;
        pushKey(key::space, ' ', true, true);
        pushUntil([this] { return game_->barOpen(); }, slideLimit, "the bar open");
    }));
}

void Player::dragItem(const Text& item) {
    push(Unfold([this, item] {
        const Point at = itemAt(item);
        push(Input{.kind = Input::Kind::move, .at = at});
        push(Input{.kind = Input::Kind::press, .at = at, .button = Button::left});
    }));
}

void Player::leaveBar() {
    push(Unfold([this] {
        const auto at = game_->aboveBar();
        if (!at) fail("a place above the bar", "no place that can be reached");
        push(Input{.kind = Input::Kind::move, .at = *at, .button = Button::left});
    }));
    pushUntil([this] { return !game_->barOpen() && !game_->barSlides(); }, slideLimit, "the bar closed");
}

void Player::dropOn(const std::function<Point()>& place) {
    push(Unfold([this, place] {
        const Point at = place();
        push(Input{.kind = Input::Kind::move, .at = at, .button = Button::left});
        push(Input{.kind = Input::Kind::release, .at = at, .button = Button::left});
    }));
}

// --- answers

// A choice that a running script is about to open is waited for.
void Player::whenAsked(const std::string& what, Unfold then) {
    room(what);
    const auto coming = [this] {
        return game_->scriptRuns() && inRoomWindow() && !game_->choiceOpen() && !game_->standingText();
    };
    if (coming()) pushUntil([coming] { return !coming(); }, scriptLimit, what);
    push(std::move(then));
}

void Player::choose(int number, const std::string& what) {
    const auto at = game_->option(number);
    if (!at) fail(what, seen());
    pushClick(*at, Button::left);
    pointerAt_ = *at;
}

void Player::chooseNumber(const Command& command) {
    const std::string what = "option " + command.words[0];
    whenAsked(what, [this, what, n = number(command.words[0])] { choose(n, what); });
}

void Player::chooseText(const Command& command) {
    const std::string what = "option \"" + command.words[0] + '"';
    whenAsked(what, [this, what, wanted = fromUtf8(command.words[0])] { chooseByText(wanted, what); });
}

// The answer that says just this, else the only one that has it in it.
void Player::chooseByText(const Text& wanted, const std::string& what) {
    int n = 0;
    std::vector<int> holding;
    for (const Text& option : game_->options()) {
        ++n;
        const Text answer = AntwortText(option);
        if (equalIgnoringCase(answer, wanted)) return choose(n, what);
        if (upper(answer).find(upper(wanted)) != Text::npos) holding.push_back(n);
    }
    if (holding.size() != 1) fail(what, (holding.empty() ? "" : "several of them; ") + seen());
    choose(holding.front(), what);
}

// --- the mini-games

void Player::win(const Command& /*command*/) {
    decide(true);
}

void Player::lose(const Command& /*command*/) {
    decide(false);
}

// A game that is just being opened is waited for.
void Player::decide(bool won) {
    const std::string wanted = won ? "a game to win" : "a game to lose";
    room(wanted);
    push(Unfold([this, won, wanted, end = backend_.clock() + scriptLimit] { tryToDecide(won, wanted, end); }));
}

void Player::tryToDecide(bool won, const std::string& wanted, Milliseconds end) {
    Window* const game = platform_->queue.active();
    if (game_->decide(won)) return leaveGame(game, backend_.clock() + gameLimit);
    if (backend_.clock() >= end || game_->idle() || game_->standingText() || game_->choiceOpen())
        fail(wanted, seen());
    push(Pause{backend_.clock() + gameLook});
    push(Unfold([this, won, wanted, end] { tryToDecide(won, wanted, end); }));
}

// Its closing steps run; who stands at the end of them is let out.
void Player::leaveGame(Window* game, Milliseconds end) {
    if (platform_->queue.active() != game) return;
    if (backend_.clock() >= end) fail("the game to end", seen());
    const Milliseconds now = backend_.clock();
    push(
        Await{[this, game, now] { return platform_->queue.active() != game || backend_.clock() >= now + gameRest; },
              now + gameRest,
              "the game to end",
              {}});
    push(Unfold([this, game, end] {
        if (platform_->queue.active() == game) game_->leaveGame();
        leaveGame(game, end);
    }));
}

// --- what no player can do

void Player::setFlag(const Command& command) {
    if (!room("the flag").setFlag(fromUtf8(command.words[0]))) fail("a room to set a flag in", seen());
}

void Player::takeItem(const Command& command) {
    const Text item = fromUtf8(command.words[0]);
    if (!room("the item").takeItem(item)) fail("item " + command.words[0], game_->whyNoSuchItem(item));
}

void Player::clearFlag(const Command& command) {
    if (!room("the flag").clearFlag(fromUtf8(command.words[0]))) fail("a room to clear a flag in", seen());
}

void Player::dropItem(const Command& command) {
    const Text item = fromUtf8(command.words[0]);
    if (!room("the item").dropItem(item)) fail("item " + command.words[0], game_->whyNoItem(item));
}

void Player::setEvil(const Command& command) {
    if (!room("the evil counter").setEvil(number(command.words[0]))) fail("a room to be evil in", seen());
}

// The room's script begins right here, as it would in a handler, and the walk goes on inside of it.
void Player::goToRoom(const Command& command) {
    whenFree("room " + command.words[0], [this, file = fromUtf8(command.words[0]), word = command.words[0]] {
        if (!game_->goTo(file)) fail("room " + word, "that there is none; " + seen());
    });
}

}  // namespace zentrox::probe
