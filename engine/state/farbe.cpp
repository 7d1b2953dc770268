#include "engine/state/farbe.h"

#include <array>
#include <cassert>

namespace zentrox {

Colour Farbe16(int n) {
    static constexpr std::array<Colour, 16> farben{
        Colour(0x000000), Colour(0x000080), Colour(0x008000), Colour(0x008080), Colour(0x800000), Colour(0x800080),
        Colour(0x808000), Colour(0xC0C0C0), Colour(0x808080), Colour(0x0000FF), Colour(0x00FF00), Colour(0x00FFFF),
        Colour(0xFF0000), Colour(0xFF00FF), Colour(0xFFFF00), Colour(0xFFFFFF)};
    assert(n >= 0 && n < 16);
    return farben[static_cast<std::size_t>(n) & 15U];
}

}  // namespace zentrox
