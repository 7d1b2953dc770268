// Numbers as files have them, one byte behind the other.
#pragma once

#include <cstdint>
#include <string>

namespace zentrox {

// The lowest byte first, as in bitmaps, icons and WAV files.
inline std::string little(std::uint32_t value, int bytes) {
    std::string out;
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> (8U * static_cast<unsigned>(i)) & 0xFFU);
    return out;
}

// The highest byte first, as in MIDI files.
inline std::string big(std::uint32_t value, int bytes) {
    const std::string reversed = little(value, bytes);
    return {reversed.rbegin(), reversed.rend()};
}

}  // namespace zentrox
