// How much the language can say. The sizes of the records stand with them, in `engine/state/zustand.h`.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zentrox {

// More options than this in one choice are damaged data.
constexpr std::int32_t MeisteOptionen = 1000;
// The longest name of a room's picture; what is longer is cut.
constexpr std::size_t LängstesBild = 100;
// So many rooms may follow each other by their start scripts without a wait before the story is stopped.
constexpr int MeisteRäumeOhneWarten = 500;

}  // namespace zentrox
