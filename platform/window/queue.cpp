#include "platform/window/queue.h"

#include <algorithm>

#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr Milliseconds toolTipRest = 500;  // how long the pointer rests before a tool tip shows

}  // namespace

Timer::Timer(Queue& queue, Milliseconds period, bool enabled, std::function<void()> onTick)
    : queue_(queue),
      period_(period),
      enabled_(enabled),
      onTick_(std::move(onTick)) {
    queue_.timers_.push_back(this);
    begin();
}

Timer::~Timer() {
    std::erase(queue_.timers_, this);
}

void Timer::setEnabled(bool on) {
    if (on == enabled_) return;
    enabled_ = on;
    begin();
}

void Timer::setPeriod(Milliseconds period) {
    period_ = period;
    begin();
}

void Timer::begin() {
    if (ticking()) due_ = queue_.clock() + step();
}

Queue::Reason::Reason(Queue& queue, TextView why) : queue_(queue) {
    queue_.reasons_.emplace_back(why);
}
Queue::Reason::~Reason() {
    queue_.reasons_.pop_back();
}

Text Queue::reasons() const {
    Text all;
    for (const Text& why : reasons_) all += (all.empty() ? "" : " > ") + why;
    return all;
}

void Queue::endProgram(int status) {
    throw ProgramEnd{status};
}

void Queue::yield(TextView why) {
    const Reason reason(*this, why);
    turn();
    present();
}

void Queue::waitUntil(TextView why, const std::function<bool()>& condition) {
    const Reason reason(*this, why);
    for (;;) {
        // Looked at after each input, so that a key tapped quickly is seen held.
        while (serveInput())
            if (condition()) return;
        serveTimers();
        if (condition()) return;
        sleepUntil(std::nullopt);
    }
}

void Queue::waitUntil(TextView why, const std::function<bool()>& condition, Milliseconds deadline) {
    const Reason reason(*this, why);
    for (;;) {
        while (serveInput())
            if (condition()) return;
        serveTimers();
        if (condition() || clock() >= deadline) return;
        sleepUntil(deadline);
    }
}

void Queue::nextFrame(TextView why) {
    const Reason reason(*this, why);
    turn();
    const Milliseconds frame = backend_.nextFrame();
    while (backend_.clock() < frame) {
        sleepUntil(std::max(clock_.at(frame), clock() + 1));
        turn();
    }
}

void Queue::turn() {
    while (serveInput()) {
    }
    serveTimers();
}

bool Queue::serveInput() {
    const auto input = backend_.nextInput();
    if (!input) return false;
    deliver(*input);
    return true;
}

void Queue::deliver(const Input& input) {
    if (active() != nullptr && (!firstLook || !firstLook(input))) handOver(input);
}

void Queue::handOver(const Input& input) {
    Window* const window = active();
    if (window == nullptr) return;
    using Kind = Input::Kind;
    if (input.kind != Kind::resize) {
        window->showToolTip(false);
        forgetToolTip();
    }
    Routing& routing = window->routing();
    switch (input.kind) {
        case Kind::move: {
            routing.move(input.at, held_.owned(input.button));
            if (active() == window) toolTipDue_ = backend_.clock() + toolTipRest;
            return;
        }
        case Kind::press:
            held_.press(input.button);
            return routing.down(input.at, input.button, input.clicks, input.shift);
        case Kind::release:
            if (held_.release(input.button)) routing.up(input.at, input.button);
            return;
        case Kind::wheel: return routing.wheel(input.at, input.code);
        case Kind::keyDown: return deliverKey(*window, input);
        case Kind::keyUp: {
            const bool belongs = held_.keyUp(input.code);
            if (belongs && input.lost) window->onHeldLost();
            if (belongs && !input.lost) routing.keyUp(input.code);
            return;
        }
        case Kind::keyPress:
            if (held_.characterBelongs()) routing.keyPress(input.character);
            return;
        case Kind::resize:
            if (windows_.front()->frame() == Frame::sizable) windows_.front()->resizeClient(input.size);
            return;
        case Kind::close: return window->requestClose();
    }
}

void Queue::deliverKey(Window& window, const Input& input) {
    const auto key = held_.keyDown(input.code, input.repeat);
    if (key == HeldInputs::Key::nobodys) return;
    window.routing().keyDown(input.code, input.shift, input.control, key == HeldInputs::Key::repeat);
}

void Queue::windowOpened(Window& window) {
    disownHeld();
    windows_.push_back(&window);
}

void Queue::windowClosed(Window& window) {
    std::erase(windows_, &window);
    forgetToolTip();
    held_.disown(0);
}

void Queue::disownHeld(HeldInputs::Mark since) {
    const HeldInputs::Lost lost = held_.disown(since);
    Window* const window = active();
    if (window == nullptr || !(lost.buttons || lost.keys)) return;
    if (lost.buttons) window->routing().lose();
    window->onHeldLost();
}

// Each timer that is due when this begins fires once, the earliest deadline first; a handler may make and end
// timers.
void Queue::serveTimers() {
    ++turns_;
    serveToolTip();
    if (stands()) return;
    const Milliseconds now = clock();
    std::vector<std::pair<Milliseconds, Timer*>> due;
    for (Timer* const timer : timers_)
        if (timer->ticking() && timer->due_ <= now) due.emplace_back(timer->due_, timer);
    std::stable_sort(due.begin(), due.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [deadline, timer] : due) {
        const bool alive = std::find(timers_.begin(), timers_.end(), timer) != timers_.end();
        if (!alive || !timer->ticking() || timer->due_ != deadline) continue;
        const Milliseconds step = timer->step();
        timer->due_ += ((now - timer->due_) / step + 1) * step;
        const auto tick = timer->onTick_;
        tick();
    }
}

void Queue::serveToolTip() {
    if (!toolTipDue_ || backend_.clock() < *toolTipDue_) return;
    forgetToolTip();
    if (Window* const window = active()) window->showToolTip(true);
}

std::optional<Milliseconds> Queue::nextTimer() const {
    std::optional<Milliseconds> next;
    for (const Timer* const timer : timers_)
        if (timer->ticking() && (!next || timer->due_ < *next)) next = timer->due_;
    return next;
}

void Queue::present() {
    backend_.present();
}

void Queue::sleepUntil(std::optional<Milliseconds> deadline) {
    present();
    if (const auto timer = nextTimer(); timer && (!deadline || *timer < *deadline)) deadline = timer;
    if (deadline) deadline = clock_.machineAt(*deadline);
    if (stands()) deadline.reset();
    for (const auto& other : {toolTipDue_, backend_.presentDue()})
        if (other && (!deadline || *other < *deadline)) deadline = other;
    backend_.sleep(deadline);
}

}  // namespace zentrox
