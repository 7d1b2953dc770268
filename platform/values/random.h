// Chance. One draw after the other from one generator, the same course for the same seed.
#pragma once

#include <cstdint>

namespace zentrox {

class Random {
public:
    explicit Random(std::uint64_t seed = 1) { reseed(seed); }
    void reseed(std::uint64_t seed) { state_ = seed; }
    // A seed that goes on from here.
    std::uint64_t state() const { return state_; }
    // A fresh number from 0 up to but excluding 1.
    double draw();
    // A fresh whole number from 0 up to but excluding n; n at least 1. One draw.
    int below(int n) { return static_cast<int>(draw() * n); }

private:
    std::uint64_t state_ = 1;
};

}  // namespace zentrox
