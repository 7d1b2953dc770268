// The rules of the quiz, a plain value: four right answers in a row, and how each answer is received.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "games/quiz/fragen.h"

namespace zentrox {

// A tick of the blinking after an answer: the words and the field of the right one turn over.
struct Blinktick {
    TextView Worte;  // these words come first, at the first tick only
    TextView Klang;  // and this effect
    bool Letzter = false;
};

struct HDWspiel {
    std::vector<Frage> Fragen;  // at least one
    std::int32_t FrageNr = 0;
    std::int32_t richtigePos = 0;  // the field that holds the right answer
    std::int32_t blinkenRichtig = 0;
    std::int32_t blinkenFalsch = 0;

    // The next question; nothing if four have been answered, which wins.
    std::optional<Aufgabe> Weiter(Random& zufall);
    bool Gefragt() const { return FrageNr > 0; }
    // The present question is the last one that has to be answered.
    void LetzteFrage();
    bool Richtig(std::int32_t feld) const { return feld == richtigePos; }
    Blinktick BlinkenRichtig();
    Blinktick BlinkenFalsch();
};

}  // namespace zentrox
