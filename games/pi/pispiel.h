// The rules of the pi game, a plain value: what is asked, for how long, how it looks, and what is said at the end.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/machine/files.h"
#include "platform/picture/bitmap.h"
#include "platform/values/random.h"
#include "platform/values/text.h"

namespace zentrox {

constexpr std::int32_t piZeichen = 10'000;  // more are never asked
constexpr std::int32_t piBestanden = 40;    // who gets as far as this has won

// The characters in the order in which they are asked, at most `piZeichen`. Line ends and the like, which nobody
// could type, are left out. Throws `DataError` if the file is missing or holds none.
Text PiLesen(const Files& files, TextView pfad);

// A character as it is asked. The later it comes, the more of its look is left to chance.
struct Pifrage {
    std::int32_t nummer = 0;
    char zeichen = 0;
    Colour farbe;
    float schrift = 0;  // points
    // Its place, as shares from 0 to 1 of the room that it leaves free across and down; nothing for the middle.
    struct Anteil {
        double x = 0;
        double y = 0;
    };
    std::optional<Anteil> ort;
};

struct PIspiel {
    Text Zeichen;             // all that is asked, at least one
    std::int32_t anzahl = 0;  // number of the character on the screen, from 1
    std::int16_t taste = 0;   // the last answer, 0 where there was none in time

    Pifrage Weiter(Random& zufall);
    // Milliseconds for the present character.
    std::int64_t Frist() const;
    // The code of a key; true if the game goes on. A comma stands for the decimal point.
    bool Antwort(std::int16_t antwort);

    bool Bestanden() const { return anzahl >= piBestanden; }
    // The line that says how it ended, before the number of characters.
    TextView Urteil() const;

private:
    bool alle() const { return anzahl == static_cast<std::int32_t>(Zeichen.size()); }
};

}  // namespace zentrox
