// The event queue: one thread, timers, and the only waits of the program. Each wait serves input and timers, so
// that handlers nest; each says why it waits.
#pragma once

#include <functional>
#include <vector>

#include "platform/window/backend.h"
#include "platform/window/gameclock.h"
#include "platform/window/held.h"

namespace zentrox {

class Queue;

// The shortest time between two ticks of a timer, whatever shorter period it is given: about the grain of the clock
// that the speeds of the games were made for.
constexpr Milliseconds shortestPeriod = 16;

// Calls its handler in a turn of the queue, again and again. A timer that could not fire in time fires once, not
// once for each period missed.
class Timer {
public:
    Timer(Queue& queue, Milliseconds period, bool enabled, std::function<void()> onTick);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    bool enabled() const { return enabled_; }
    // Turning it on begins a fresh period.
    void setEnabled(bool on);
    Milliseconds period() const { return period_; }
    // 0 or less: it does not fire. A new period begins now.
    void setPeriod(Milliseconds period);

private:
    friend class Queue;
    bool ticking() const { return enabled_ && period_ > 0; }
    Milliseconds step() const { return period_ < shortestPeriod ? shortestPeriod : period_; }
    void begin();

    Queue& queue_;
    Milliseconds period_;
    bool enabled_;
    Milliseconds due_ = 0;
    std::function<void()> onTick_;
};

class Queue {
public:
    explicit Queue(Backend& backend) : backend_(backend) {}
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;

    Milliseconds clock() const { return clock_.at(backend_.clock()); }
    // While the clock stands, no timer fires; input comes, and what is new is shown.
    bool stands() const { return clock_.stands(); }
    void stopClock() { clock_.stop(backend_.clock()); }
    void letClockGoOn() { clock_.goOn(backend_.clock()); }
    // Percent of the machine's time, 1 to 10,000.
    int pace() const { return clock_.pace(); }
    void setPace(int percent) { clock_.setPace(percent, backend_.clock()); }

    // One turn: all pending input, then each timer that is due, in the order of their deadlines.
    void yield(TextView why);
    // Turn after turn until the condition holds; asleep in between until the next input or timer.
    void waitUntil(TextView why, const std::function<bool()>& condition);
    // The same, but no longer than until the clock has reached `deadline`. At least one turn.
    void waitUntil(TextView why, const std::function<bool()>& condition, Milliseconds deadline);
    // For loops that draw as often as the machine allows: serves and shows one frame of the display.
    void nextFrame(TextView why);
    // When the next frame of the display is due, by the game's clock, for who waits until then.
    Milliseconds frameDue() const { return std::max(clock_.at(backend_.nextFrame()), clock() + 1); }

    // Counts the turns, so that a long piece of work can see whether it has ever waited.
    std::uint64_t turns() const { return turns_; }

    // Why the program waits, from the outermost to the innermost: "Lade Keller.lsd > Text > Dialog".
    Text reasons() const;
    // The innermost of them, empty if it does not wait.
    TextView reason() const { return reasons_.empty() ? TextView() : TextView(reasons_.back()); }

    // Ends the process from inside any wait.
    [[noreturn]] static void endProgram(int status = 0);

    // Shows what is new, if the display is ready for it.
    void present();

    const std::vector<Window*>& windows() const { return windows_; }  // the topmost one is the last
    Window* active() const { return windows_.empty() ? nullptr : windows_.back(); }
    // Told by the windows themselves. What was held down belonged to the one that stood on top.
    void windowOpened(Window& window);
    void windowClosed(Window& window);

    // Asked for each input before the topmost window is told of it; true if that shall not know of it. It may open
    // windows and wait.
    std::function<bool(const Input& input)> firstLook;

    // Gives an input to the topmost window as if a person had made it, without a first look.
    void handOver(const Input& input);

    // A moment between two inputs, for `disownHeld`.
    HeldInputs::Mark heldMark() const { return held_.mark(); }
    // A state of the game is over: what is held down and began behind `since` belonged to it. Nobody gets its
    // release or a key's repeats.
    void disownHeld(HeldInputs::Mark since = 0);

    // A reason that stands for the length of a scope.
    class Reason {
    public:
        Reason(Queue& queue, TextView why);
        ~Reason();
        Reason(const Reason&) = delete;
        Reason& operator=(const Reason&) = delete;

    private:
        Queue& queue_;
    };

private:
    friend class Timer;

    bool serveInput();
    void serveTimers();
    void turn();
    void deliver(const Input& input);
    void deliverKey(Window& window, const Input& input);
    void forgetToolTip() { toolTipDue_.reset(); }
    void serveToolTip();
    std::optional<Milliseconds> nextTimer() const;
    void sleepUntil(std::optional<Milliseconds> deadline);

    Backend& backend_;
    GameClock clock_;
    std::vector<Timer*> timers_;
    std::vector<Window*> windows_;
    HeldInputs held_;
    std::vector<Text> reasons_;
    std::uint64_t turns_ = 0;
    std::optional<Milliseconds> toolTipDue_;  // by the machine's clock
};

}  // namespace zentrox
