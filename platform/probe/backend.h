// The machine without a screen: its clock moves only while the program waits, its input comes from a walk, and what
// would be heard, shown or started is written down.
#pragma once

#include <functional>
#include <iosfwd>

#include "platform/window/backend.h"
#include "platform/window/messagebox.h"

namespace zentrox::probe {

// Plays in place of a person; asked at each turn of the queue.
class Person {
public:
    virtual ~Person() = default;
    // What it does next, nothing if it waits for time to pass.
    virtual std::optional<Input> next() = 0;
    // True if `next` has something to do without the clock moving.
    virtual bool ready() = 0;
    // When it wants to be asked at the latest.
    virtual std::optional<Milliseconds> due() = 0;
    // The program has gone on for long without a wait and is not likely to end.
    virtual void stuck() {}
};

class ProbeBackend : public Backend {
public:
    // Trace lines go to `trace`, null for none. The clock stands at `begin` first; the trace counts from there.
    ProbeBackend(std::uint64_t seed, std::ostream* trace, Milliseconds begin = 0)
        : seed_(seed),
          trace_(trace),
          begin_(begin),
          now_(begin) {}

    void setPerson(Person* person) { person_ = person; }
    // Called whenever the clock has moved, before anything else happens.
    void setClockMoved(std::function<void()> moved) { clockMoved_ = std::move(moved); }
    // A line of the trace at the present time or at an earlier one, UTF-8.
    void trace(const std::string& line) { trace(now_, line); }
    void trace(Milliseconds at, const std::string& line);
    // Before the program begins again after a restart.
    void beginAnew();

    bool restartWanted() const { return restartWanted_; }
    // The message box that opened last, null if none has.
    const MessageBox* lastBox() const { return lastBox_ ? &*lastBox_ : nullptr; }
    // Set by the person when it has looked for the box that is open.
    bool boxExpected = false;
    // What a screen would draw over the picture of all windows; see `Scene::overlay` of the desktop.
    std::function<void(Bitmap& picture, const Rect& base, const Rect& top)> overlay;

    Milliseconds clock() override { return now_; }
    std::optional<Input> nextInput() override;
    void sleep(std::optional<Milliseconds> until) override;
    Milliseconds nextFrame() override;
    void opened(Window& window) override;
    void closed(Window& window) override;
    void reshaped(Window& /*window*/) override {}
    void pointerChanged(Window& /*window*/) override {}
    void present() override {}
    bool wantsToClose() override;
    void messageBoxOpened(const MessageBox& box) override;
    std::array<std::uint8_t, 256> keys() override { return keys_; }
    std::string clipboard() override { return clipboard_; }
    void setClipboard(const std::string& text) override { clipboard_ = text; }
    std::uint64_t seed() override { return seed_; }
    bool start(const std::vector<std::string>& command) override;
    void restart() override;

private:
    std::uint64_t seed_;
    std::ostream* trace_;
    Person* person_ = nullptr;
    std::function<void()> clockMoved_;
    Milliseconds begin_;
    Milliseconds now_;
    bool handedOver_ = false;  // one input a turn
    int asked_ = 0;            // so often without a wait whether to close
    bool restartWanted_ = false;
    std::array<std::uint8_t, 256> keys_{};
    std::string clipboard_;
    std::optional<MessageBox> lastBox_;
};

// A text on one line of a trace or a message: line ends become \n, the rest UTF-8.
std::string onOneLine(TextView text);

}  // namespace zentrox::probe
