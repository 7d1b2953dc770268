// The questions of the quiz: the file that they come from, and how one is put.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/machine/files.h"
#include "platform/values/random.h"

namespace zentrox {

constexpr int Antwortfelder = 4;

struct Frage {
    Text Land;
    std::array<Text, Antwortfelder> Antworten;  // the first is the capital, the others are not
    friend bool operator==(const Frage&, const Frage&) = default;
};

// Reads a line "Land#Hauptstadt,falsch,falsch,falsch". Nothing where the fourth city is missing: such lines are
// comments.
std::optional<Frage> FrageLesen(TextView zeile);
// The usable lines of a whole file. It is in code page 1252; one that was saved as UTF-8 is understood all the
// same.
std::vector<Frage> FragenLesen(std::string_view bytes);
// Throws `DataError` that names the file if it can't be read or holds no usable line.
std::vector<Frage> FragenLaden(const Files& files, TextView pfad);

// A question as it stands on the screen.
struct Aufgabe {
    Text Wortlaut;
    std::array<Text, Antwortfelder> Felder;
    std::int32_t richtigePos = 0;  // the field that holds the right answer
};

// Draws any of the questions, the words of it, and the field of the right answer, in this order. `nummer` counts
// from 1.
Aufgabe AufgabeStellen(Random& random, const std::vector<Frage>& fragen, std::int32_t nummer);

}  // namespace zentrox
