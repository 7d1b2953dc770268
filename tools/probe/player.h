// Plays a walk: hands its input to the program, lets time pass, looks whether what it expects is there.
#pragma once

#include <chrono>
#include <deque>
#include <filesystem>
#include <functional>
#include <variant>

#include "platform/platform.h"
#include "platform/probe/backend.h"
#include "tools/probe/walk.h"

namespace zentrox::probe {

// What a walk asks of the game itself. Names are in code page 1252, points in the active window's client area.
class Game {
public:
    virtual ~Game() = default;
    virtual bool idle() = 0;
    virtual bool scriptRuns() = 0;
    virtual bool flag(TextView name) = 0;
    virtual bool carries(TextView item) = 0;
    virtual bool inRoom(TextView file) = 0;
    virtual int evil() = 0;
    virtual bool choiceOpen() = 0;
    // The lines of the text that waits for a key in the room; nothing if none does.
    virtual std::optional<std::vector<Text>> standingText() = 0;
    // The answers of the choice that waits, in their order.
    virtual std::vector<Text> options() = 0;
    virtual bool barOpen() = 0;
    virtual bool barSlides() = 0;
    // Where an object takes the click, an item of the open bar lies, an option stands; nothing if it can't be
    // reached.
    virtual std::optional<Point> object(TextView name) = 0;
    virtual std::optional<Point> item(TextView name) = 0;
    virtual std::optional<Point> option(int number) = 0;
    // Why an object or an item can't be reached, or does not exist, with the names that are there: for messages.
    virtual std::string whyNoObject(TextView name) = 0;
    virtual std::string whyNoItem(TextView name) = 0;
    virtual std::string whyNoSuchItem(TextView name) = 0;
    // A place over the room picture that the open bar does not cover.
    virtual std::optional<Point> aboveBar() = 0;
    // The lines of `say state`.
    virtual std::vector<Text> state() = 0;

    // What no player can do, for walks that begin in the middle of a story. False if there is no room window, no
    // such item, or no such room. `goTo` returns when the room's script has ended.
    // Brings the mini-game that is open to its end; false while it can't be.
    virtual bool decide(bool won) = 0;
    // What a player does to leave a game that has ended.
    virtual void leaveGame() = 0;
    virtual bool setFlag(TextView name) = 0;
    virtual bool takeItem(TextView item) = 0;
    virtual bool clearFlag(TextView name) = 0;
    virtual bool dropItem(TextView item) = 0;
    virtual bool setEvil(int points) = 0;
    virtual bool goTo(TextView room) = 0;
};

// The walk did not find what it expected. The message is `FILE:LINE: what was expected, what was found`.
struct WalkFailure {
    std::string message;
};

class Player : public Person {
public:
    // Pictures of `shot` go to `pictures`, what `say` prints to `out`. A walk that takes longer than `patience` of
    // real time fails, so that none hangs who runs it.
    Player(Walk walk, ProbeBackend& backend, std::filesystem::path pictures, std::ostream& out,
           std::chrono::seconds patience = std::chrono::hours(24));

    // The program that it plays now; both null when it has ended. Throws nothing.
    void attach(Platform* platform, Game* game);
    // Plays the rest of the walk after the program has ended. Throws `WalkFailure`.
    void finish();
    // True when all commands have been played.
    bool over() const { return failed_ || (steps_.empty() && position_ == walk_.commands.size()); }
    // The line of the command that is being played, for messages: `FILE:LINE`.
    std::string place() const;

    // Throw `WalkFailure`, and `ProgramEnd` where the walk is over while the program runs.
    std::optional<Input> next() override;
    bool ready() override;
    std::optional<Milliseconds> due() override;
    void stuck() override;

    // --- the commands, each called when its turn has come
    void wait(const Command& command);
    void until(const Command& command);
    void expect(const Command& command);
    void say(const Command& command);
    void shot(const Command& command);
    void end(const Command& command);
    void move(const Command& command);
    void press(const Command& command);
    void release(const Command& command);
    void click(const Command& command);
    void doubleClick(const Command& command);
    void key(const Command& command);
    void keyDown(const Command& command);
    void keyUp(const Command& command);
    void type(const Command& command);
    void read(const Command& command);
    void useObject(const Command& command);
    void useItem(const Command& command);
    void lookObject(const Command& command);
    void lookItem(const Command& command);
    void give(const Command& command);
    void combine(const Command& command);
    void chooseNumber(const Command& command);
    void chooseText(const Command& command);
    void win(const Command& command);
    void lose(const Command& command);
    void setFlag(const Command& command);
    void takeItem(const Command& command);
    void clearFlag(const Command& command);
    void dropItem(const Command& command);
    void setEvil(const Command& command);
    void goToRoom(const Command& command);
    void resize(const Command& command);
    void close(const Command& command);

private:
    // Lets time pass, whatever happens.
    struct Pause {
        Milliseconds end = 0;
    };
    // Lets time pass until something holds; fails at its deadline.
    struct Await {
        std::function<bool()> holds;
        Milliseconds deadline = 0;
        std::string expected;
        std::function<std::string()> found;
    };
    // Finds out what the next steps are, or does something by itself.
    using Unfold = std::function<void()>;
    using Step = std::variant<Input, Pause, Await, Unfold>;

    bool somethingShown() const;
    bool passed(const Pause& pause);
    bool passed(const Await& await);
    void checkPatience();

    // Takes the button at the front of the words, if one stands there, and then moves to the place behind it.
    Button takePointer(std::vector<std::string> words);
    void clickThing(std::optional<Point> at, const std::string& what, const std::string& why, Button button);
    void clickObject(const Command& command, Button button);
    void clickItem(const Command& command, Button button);
    void dropOn(const std::function<Point()>& place);
    void openBar();
    void leaveBar();
    void dragItem(const Text& item);
    Point itemAt(const Text& item);
    Point objectAt(const Text& object);
    void decide(bool won);
    void tryToDecide(bool won, const std::string& wanted, Milliseconds end);
    void leaveGame(Window* game, Milliseconds end);
    void choose(int number, const std::string& what);
    // Goes on when no script runs any more. Clicks at things of a room are lost while a text or a choice waits: a
    // walk that does that fails.
    void whenFree(const std::string& wanted, Unfold then);
    void whenAsked(const std::string& what, Unfold then);
    void chooseByText(const Text& wanted, const std::string& what);
    bool inRoomWindow() const { return platform_->queue.active()->name() == "Form1"; }
    Game& room(const std::string& wanted);

    struct Reading;
    void readOn(const std::shared_ptr<Reading>& reading);

    void sayControls();

    void push(Step step);
    void pushKey(int code, char character, bool down, bool up);
    void pushClick(Point at, Button button);
    void pushUntil(std::function<bool()> condition, Milliseconds limit, const std::string& expected);

    bool holds(const Condition& condition);
    bool windowHolds(const Condition& condition, Window& window);
    std::string found(const Condition& condition);
    // What a person would see now: the window, what is said or asked in it, the room.
    std::string seen();
    [[noreturn]] void fail(const std::string& expected, const std::string& found);
    Window& active(const std::string& wanted);
    Bitmap picture(Window& window);

    Walk walk_;
    ProbeBackend& backend_;
    std::filesystem::path pictures_;
    std::ostream& out_;
    std::chrono::steady_clock::time_point impatient_;
    Platform* platform_ = nullptr;
    Game* game_ = nullptr;
    std::size_t position_ = 0;  // of the next command
    int line_ = 0;
    std::deque<Step> steps_;
    std::size_t insertAt_ = 0;  // where new steps go
    bool settled_ = false;      // a pause is over, and a turn has passed since
    bool failed_ = false;
    Point pointerAt_;
    Button held_ = Button::none;
};

}  // namespace zentrox::probe
