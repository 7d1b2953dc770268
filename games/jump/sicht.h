// The view of Jump: which part of the level is seen, and the steps in which it moves.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/values/geometry.h"

namespace zentrox {

constexpr Size Jumpfeld{624, 432};  // 13 columns and all rows

// The view moved by `d` pixels, to the right if positive.
struct Scrollschritt {
    std::int32_t d;
    std::int32_t vorher;  // `ScrollX` before it
};

// In their order. None crosses the border of a column, so that the strip which comes in is a slice of one tile of
// each row.
using Scrollschritte = std::vector<Scrollschritt>;

struct Sicht {
    float ScrollX = 0;  // the level's x at the left edge of the view; always a whole number

    // Moves by `d` pixels, to the right if positive; stops at 0 on the left and before the level's last column on
    // the right. The steps are added to `schritte`.
    void Scroll(std::int32_t d, Scrollschritte& schritte);

private:
    void links(std::int32_t a, Scrollschritte& schritte);
    void rechts(std::int32_t d, Scrollschritte& schritte);
    void schritt(std::int32_t d, Scrollschritte& schritte);
};

}  // namespace zentrox
