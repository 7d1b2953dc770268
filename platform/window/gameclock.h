// The time of the game: the machine's, which can be made to stand still, or to go slower or faster. Without either
// it is the machine's own, to the millisecond.
#pragma once

#include <algorithm>
#include <cstdint>

namespace zentrox {

class GameClock {
public:
    // Milliseconds; `machine` never goes back.
    std::int64_t at(std::int64_t machine) const {
        return stands_ > 0 ? game_ : game_ + (machine - machine_) * pace_ / whole;
    }
    // When the machine's clock will have brought the game's to `game`, unless either is changed meanwhile.
    std::int64_t machineAt(std::int64_t game) const {
        return machine_ + ((game - game_) * whole + pace_ - 1) / pace_;
    }
    bool stands() const { return stands_ > 0; }
    // Who stops it lets it go on as often.
    void stop(std::int64_t machine) {
        settle(machine);
        ++stands_;
    }
    void goOn(std::int64_t machine) {
        settle(machine);
        --stands_;
    }
    int pace() const { return pace_; }
    // Percent of the machine's, 1 to 10,000.
    void setPace(int percent, std::int64_t machine) {
        settle(machine);
        pace_ = std::clamp(percent, 1, 10'000);
    }

private:
    static constexpr std::int64_t whole = 100;

    void settle(std::int64_t machine) {
        game_ = at(machine);
        machine_ = machine;
    }

    std::int64_t game_ = 0;  // the two clocks at the last change
    std::int64_t machine_ = 0;
    int pace_ = 100;
    int stands_ = 0;
};

}  // namespace zentrox
