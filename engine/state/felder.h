// The small operations on texts and numbers that rooms, games and saved games share.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/values/text.h"

namespace zentrox {

// The n-th field of a text, counted from 1; one blank where there is none. An empty field is the empty text.
Text Feld(TextView text, TextView trenner, int n);

// What stands behind the last backslash, or the whole text.
Text Dateiname(TextView pfad);

// The text without blanks at its ends.
Text Trim(TextView text);
// The same as a part of `text` itself, for the call alone.
TextView Getrimmt(TextView text);

// What an answer of a choice says, on one line: without its colour mark and the blanks around it.
Text AntwortText(Text antwort);

// The number at the front of a text, blanks before it skipped; 0 where there is none.
double Val(TextView text);
// The number that the whole text is, blanks around it skipped; nothing if it is none.
std::optional<double> Zahl(TextView text);

// To the nearest whole number, ties to the even one. What int32 can't hold becomes its nearest value.
std::int32_t Runden(double wert);

}  // namespace zentrox
