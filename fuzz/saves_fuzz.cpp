// Saved games from anywhere: what has been read can be written, and is read back the same.
#include <cstdlib>

#include "saves/spielstand.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    const TextView input(reinterpret_cast<const char*>(data), size);
    Zustand z;
    const bool read = SpielstandLesen(input, z);
    if (z.InventarLetzter < -1 || z.InventarLetzter >= InventarPlätze) std::abort();
    if (!read) return 0;
    const Text written = SpielstandSchreiben(z);
    Zustand again;
    if (!SpielstandLesen(written, again) || SpielstandSchreiben(again) != written) std::abort();
    return 0;
}
