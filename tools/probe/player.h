// Plays a walk: hands its input to the program, lets time pass, looks whether what it expects is there.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>

#include "platform/platform.h"
#include "platform/probe/backend.h"
#include "tools/probe/walk.h"

namespace zentrox::probe {

// What a walk asks of the game itself. Names are in code page 1252, points in the active window's client area.
class Game {
public:
    virtual ~Game() = default;
    virtual bool idle() = 0;
    virtual bool flag(TextView name) = 0;
    virtual bool carries(TextView item) = 0;
    virtual bool inRoom(TextView file) = 0;
    virtual int evil() = 0;
    virtual bool choiceOpen() = 0;
    virtual bool barOpen() = 0;
    virtual bool barSlides() = 0;
    // Where an object takes the click, an item of the open bar lies, an option stands; nothing if it can't be
    // reached.
    virtual std::optional<Point> object(TextView name) = 0;
    virtual std::optional<Point> item(TextView name) = 0;
    virtual std::optional<Point> option(int number) = 0;
    // A place over the room picture that the open bar does not cover.
    virtual std::optional<Point> aboveBar() = 0;
    // The lines of `say state`.
    virtual std::vector<Text> state() = 0;
};

// The walk did not find what it expected. The message is `FILE:LINE: what was expected, what was found`.
struct WalkFailure {
    std::string message;
};

class Player : public Person {
public:
    // Pictures of `shot` go to `pictures`, what `say` prints to `out`.
    Player(Walk walk, ProbeBackend& backend, std::filesystem::path pictures, std::ostream& out);

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

private:
    // One step of a command: an input, a wait, or a step that finds out what the next steps are.
    struct Step {
        std::optional<Input> input;
        std::function<bool()> holds;
        Milliseconds deadline = 0;
        bool timeOnly = false;  // a wait that is over, and no failure, at its deadline
        std::string expected;
        std::function<std::string()> found;
        std::function<void()> unfold;
    };

    bool somethingShown() const;
    void begin(const Command& command);
    void beginPointer(const Command& command);
    void beginKeys(const Command& command);
    void beginThing(const Command& command);
    void say(const Command& command);
    void sayControls();
    void shot(const std::string& file);

    void push(Input input);
    void pushKey(int code, char character, bool down, bool up);
    void pushClick(Point at, Button button);
    void pushUntil(std::function<bool()> condition, Milliseconds limit, const std::string& expected);
    void pushUnfold(std::function<void()> unfold);
    void openBar();
    void dragItem(const Text& item);
    Point reach(std::optional<Point> place, const std::string& what);

    bool holds(const Condition& condition);
    bool windowHolds(const Condition& condition, Window& window);
    std::string found(const Condition& condition);
    [[noreturn]] void fail(const std::string& expected, const std::string& found);
    Window& active(const std::string& wanted);

    Walk walk_;
    ProbeBackend& backend_;
    std::filesystem::path pictures_;
    std::ostream& out_;
    Platform* platform_ = nullptr;
    Game* game_ = nullptr;
    std::size_t position_ = 0;  // of the next command
    int line_ = 0;
    std::deque<Step> steps_;
    std::size_t insertAt_ = 0;  // where new steps go
    bool settled_ = false;      // a wait's time has come, and a turn has passed since
    bool failed_ = false;
    Point pointerAt_;
    Button held_ = Button::none;
};

}  // namespace zentrox::probe
