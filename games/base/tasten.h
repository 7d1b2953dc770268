// The keyboard as the games that poll it see it.
#pragma once

#include <array>
#include <cstdint>

namespace zentrox {

// All keys by their virtual code: above 126 a key counts as held, below 128 as let go.
using Tasten = std::array<std::uint8_t, 256>;

constexpr bool Gedrückt(const Tasten& tasten, int code) {
    return tasten[static_cast<std::size_t>(code)] > 126;
}

// Remembers the keys that were tapped between two looks at the keyboard: such a key counts as held for one look,
// and as let go at the same time.
class Tastenwacht {
public:
    // A key went down.
    void Nieder(int code);
    // Adds the keys that went down since the last call to a look at the keyboard.
    void Ergänzen(Tasten& tasten);

private:
    Tasten getippt_{};
};

}  // namespace zentrox
