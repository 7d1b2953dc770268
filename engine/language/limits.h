// How much the language can say. The sizes of the records stand with them, in `engine/state/zustand.h`.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zentrox {

// More options than this in one choice are damaged data.
constexpr std::int32_t MeisteOptionen = 1000;
// The longest name of a room's picture; what is longer is cut.
constexpr std::size_t LängstesBild = 100;
// So many runs may stand inside each other before the story is stopped. Rooms that lead on by their start scripts
// nest as deep as their chain is long. A level takes 2 to 3 KB of stack with sanitizers, its room window not
// counted, so there is room to spare.
constexpr int TiefsterLauf = 500;

}  // namespace zentrox
