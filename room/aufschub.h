// Events that would start a script while the bar slides. They wait until the slide is done, in the order in which
// they came, and fall with the room that they were meant for.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>

#include "engine/state/zustand.h"

namespace zentrox {

class Aufschub {
public:
    explicit Aufschub(const Zustand& z) : z_(z) {}

    // True if `nachher` is done later. Of the ticks of a timer that could not fire only one is.
    bool Halten(std::function<void()> nachher, bool tick = false);
    bool Leer() const { return wartend_.empty(); }
    void Verwerfen() { wartend_.clear(); }
    // Does what waits, if nothing slides.
    void Nachholen();

    void RaumBetreten() { ++besuch_; }
    // Counts the rooms that were entered.
    std::uint64_t Besuch() const { return besuch_; }

private:
    struct Ereignis {
        std::uint64_t besuch;
        bool tick;
        std::function<void()> tun;
    };

    const Zustand& z_;
    std::deque<Ereignis> wartend_;
    std::uint64_t besuch_ = 0;
};

}  // namespace zentrox
