#include "platform/values/random.h"

namespace zentrox {

// A counter with a strong mix behind it (splitmix64): any seed is as good as any other, 0 included.
double Random::draw() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state_;
    z = (z ^ z >> 30U) * 0xBF58476D1CE4E5B9U;
    z = (z ^ z >> 27U) * 0x94D049BB133111EBU;
    z ^= z >> 31U;
    constexpr double step = 1.0 / (1ULL << 53U);
    return static_cast<double>(z >> 11U) * step;
}

}  // namespace zentrox
