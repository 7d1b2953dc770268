// The rules of the pi game: what is asked, for how long, how it looks, and what is said at the end.
#pragma once

#include <cstdint>

#include "platform/machine/files.h"
#include "platform/values/geometry.h"
#include "platform/values/random.h"
#include "platform/values/text.h"

namespace zentrox {

constexpr std::int32_t piZeichen = 10'000;  // more are never asked
constexpr std::int32_t piBestanden = 40;    // who gets as far as this has won

// The characters in the order in which they are asked, at most `piZeichen`. Line ends and the like, which nobody
// could type, are left out. Throws `DataError` if the file is missing or holds none.
Text PiLesen(const Files& files, TextView pfad);

// Milliseconds for a character, counted from 1.
std::int64_t PiFrist(std::int32_t anzahl);

// True if a key, by its code, stands for the character. A comma stands for the decimal point.
bool PiRichtig(std::int16_t taste, char zeichen);

// How a character is shown. The later it comes, the more is left to chance.
Colour PiFarbe(std::int32_t anzahl, Random& zufall);
float PiSchrift(std::int32_t anzahl, Random& zufall);  // points
// Of a character of that size on a surface of this one.
Point PiOrt(std::int32_t anzahl, Size fläche, Size zeichen, Random& zufall);

Point PiMitte(Size fläche, Size text);

// The line that says how it ended, before the number of characters. `letztes` is the last character that there is.
TextView PiUrteil(std::int32_t anzahl, std::int32_t letztes, std::int16_t taste);

}  // namespace zentrox
